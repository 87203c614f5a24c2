// The nets of the selected blocks, found in one pass over all nets.
#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "editor/design.h"
#include "platform/hash.h"

namespace mardel {

struct listed_net {
  cursor_list<net>::iterator at;
  std::size_t place = 0;  // in the list
};

// By the id of the block, each one's nets in list order; a net between two selected blocks belongs
// to both. Every selected block has an entry.
using nets_by_block = std::unordered_map<std::int64_t, std::vector<listed_net>, id_hash>;
nets_by_block NetsOfSelection(design& document);

// UpdateNetEnds for all selected blocks.
void UpdateNetEndsOfSelection(design& document);

}  // namespace mardel
