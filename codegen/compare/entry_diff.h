// The values of a block, compared by name.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "editor/design.h"

namespace mardel {

struct entry_change {
  std::string name;                     // "level", "number of level", "pin out"
  std::optional<std::string> from, to;  // nothing where the block has no such value
};

// By name, and of equal names in order.
std::vector<entry_change> DiffEntries(const dvblock& before, const dvblock& after);

}  // namespace mardel
