// Hashes of what files hold, ids above all. Each run has its own seeds, so that no file can be made
// whose ids all meet in one place. So no result may depend on the order of such a table.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace mardel {

// Random for each run; the multipliers are odd.
struct hash_seeds {
  std::uint64_t start = 0x6A09E667F3BCC908U;  // these from the square root of 2, the golden ratio
  std::uint64_t first = 0x9E3779B97F4A7C15U;
  std::uint64_t second = 0xBB67AE8584CAA73BU;  // and the square root of 3
};
extern const hash_seeds kHashSeeds;

// Different words have different hashes, spread over all 64 bits.
inline std::uint64_t HashWord(std::uint64_t word) {
  word *= kHashSeeds.first;
  return (word ^ word >> 32U) * kHashSeeds.second;
}

// Of a block's, a net's or a note's id.
struct id_hash {
  std::size_t operator()(std::int64_t id) const {
    return static_cast<std::size_t>(HashWord(static_cast<std::uint64_t>(id)));
  }
};

struct text_hash {
  using is_transparent = void;
  std::size_t operator()(std::string_view text) const;
};

}  // namespace mardel
