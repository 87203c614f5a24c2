// Fingerprints of records, by which those of two designs are matched.
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/hash.h"

namespace mardel {

class digest {
 public:
  digest& operator<<(std::int64_t value) {
    state_ = HashWord(state_ ^ static_cast<std::uint64_t>(value)) + 1;
    return *this;
  }
  digest& operator<<(std::uint64_t value) { return *this << static_cast<std::int64_t>(value); }
  digest& operator<<(std::string_view text) { return *this << std::uint64_t{text_hash{}(text)}; }
  std::uint64_t Value() const { return state_; }

 private:
  std::uint64_t state_ = 1;
};

}  // namespace mardel
