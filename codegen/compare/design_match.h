// Which records of two designs are the same one, whatever their ids and their order.
#pragma once

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "editor/design.h"
#include "platform/hash.h"

namespace mardel {

// One of the two is null when the other design has no such record.
template <class record>
struct matched {
  const record* old_one = nullptr;
  const record* new_one = nullptr;
};

// Matched and removed ones in the old design's order, then the added ones in the new design's.
template <class record>
using matches = std::vector<matched<record>>;

struct design_match {
  matches<dvblock> blocks;
  matches<net> nets;
  matches<textblock> texts;
};

// Blocks are the same by what they are, where they stand and how they are wired, then by less and
// less of it; a block of another library but the same name and id may still be the same.
design_match MatchDesigns(const design& old_one, const design& new_one);

// 0 for a block without wires.
struct block_digest {
  std::uint64_t own = 0, wires = 0;
};

// Of what each block is and where it stands, and of what it is wired to; ids and orders are left
// out.
using block_digests = std::unordered_map<const dvblock*, block_digest>;
block_digests DigestBlocks(const design& document);

using blocks_by_id = std::unordered_map<std::int64_t, const dvblock*, id_hash>;

// The first of each id, to which the nets refer.
blocks_by_id IndexBlocks(const cursor_list<dvblock>& blocks);

}  // namespace mardel
