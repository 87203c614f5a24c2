// The ends of a design's nets: which of them lie on the same pin.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "codegen/numbering.h"
#include "editor/design.h"
#include "platform/hash.h"

namespace mardel {

struct net_end {
  std::int64_t block_id = 0;
  std::string_view pin_name;
  bool operator==(const net_end&) const = default;
};

struct net_end_hash {
  std::uint64_t operator()(const net_end& end) const {
    return HashWord(id_hash{}(end.block_id) ^ text_hash{}(end.pin_name));
  }
};

// A net, with both its ends as numbers.
struct end_pair {
  const net* wire = nullptr;
  std::uint32_t first = 0, second = 0;
};

// Numbers every distinct end from 0. Refers to the nets, which must stay as they are. What follows
// works on the numbers: they lie side by side, where nets and blocks lie all over the memory.
class net_ends {
 public:
  explicit net_ends(const cursor_list<net>& nets, std::span<const net> more = {});

  // In net order.
  const std::vector<end_pair>& Pairs() const { return pairs_; }
  // Of distinct ends.
  std::size_t Count() const { return numbers_.size(); }
  std::int64_t BlockOf(std::uint32_t end) const { return numbers_.Key(end).block_id; }
  // kNoNumber when no net ends there.
  std::uint32_t Find(std::int64_t block_id, std::string_view pin_name) const {
    return numbers_.Find({block_id, pin_name});
  }

 private:
  numbering<net_end, net_end_hash> numbers_;
  std::vector<end_pair> pairs_;
};

}  // namespace mardel
