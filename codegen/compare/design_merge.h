// Brings two versions of a design, made from a common one, together.
#pragma once

#include <string>
#include <vector>

#include "editor/design.h"

namespace mardel {

struct three_designs {
  const design& base;
  const design& ours;
  const design& theirs;
};

// Fills the empty `merged`: ours in its order, then what theirs added, with new ids where ours or
// the base uses them. Blocks and notes of the base are found again by id and name, wires by their
// ends. Returns a line for each conflict, where merged has what ours has.
std::vector<std::string> MergeDesigns(design& merged, const three_designs& versions);

}  // namespace mardel
