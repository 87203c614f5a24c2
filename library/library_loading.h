// Libraries while they are being loaded.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "library/library_set.h"
#include "platform/painter.h"

namespace mardel {

struct library_loading {
  const text_metrics& metrics;
  int next_id = 1;  // the next free menu id
  library_records records = {};
  std::size_t current = 0;            // the library that was added or found by name last
  std::vector<blockdef> staged = {};  // blocks that wait for their registration
  std::unordered_map<std::string, std::size_t> library_by_upper_name = {};  // first of each
};

// There must be one.
library& CurrentLibrary(library_loading& so_far);

// Becomes the current one.
void AddLibrary(library_loading& so_far, library added);

// The library of this name in any letter case becomes the current one; null when there is none.
const library* SelectIgnoringCase(library_loading& so_far, std::string_view name);

// Lays out the staged blocks, gives each a menu id, and moves them to the end of the definitions as
// a group of their own.
void RegisterStaged(library_loading& so_far, const std::string& title);

// Gives a definition its size and its pins their places.
void LayOut(blockdef& block, const text_metrics& metrics);

}  // namespace mardel
