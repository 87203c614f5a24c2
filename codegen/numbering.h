// Numbers keys, so that what is known of them fits in plain vectors.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace mardel {

constexpr std::uint32_t kNoNumber = std::numeric_limits<std::uint32_t>::max();

// Distinct keys get 0, 1, 2, ... in the order in which they are first seen. `hash` gives 64 bits.
template <class key, class hash>
class numbering {
 public:
  // `most` keys at most will be numbered.
  explicit numbering(std::size_t most) : slots_(std::bit_ceil(2 * most + 2), kNoNumber) {
    keys_.reserve(most);
  }

  std::size_t size() const { return keys_.size(); }

  std::uint32_t Number(const key& of) {
    std::uint32_t& slot = slots_[Slot(of)];
    if (slot == kNoNumber) {
      slot = static_cast<std::uint32_t>(keys_.size());
      keys_.push_back(of);
    }
    return slot;
  }

  const key& Key(std::uint32_t number) const { return keys_[number]; }

  // kNoNumber for a key that has none.
  std::uint32_t Find(const key& of) const { return slots_[Slot(of)]; }

 private:
  // Where the key is, or the free slot where it would be; more than half of the slots are free.
  std::size_t Slot(const key& of) const {
    const std::size_t mask = slots_.size() - 1;
    const int shift = 64 - std::countr_zero(slots_.size());
    std::size_t slot = static_cast<std::size_t>(hash{}(of) >> static_cast<unsigned>(shift));
    while (slots_[slot] != kNoNumber && !(keys_[slots_[slot]] == of)) slot = (slot + 1) & mask;
    return slot;
  }

  std::vector<key> keys_;
  std::vector<std::uint32_t> slots_;
};

}  // namespace mardel
