// What becomes of a design's names and values in a file, which holds them as they stand.
#pragma once

#include <string>
#include <vector>

#include "editor/design.h"

namespace mardel {

enum class value_fate { kKept, kChanged, kBreaksFile };

// What a value that is not kept becomes once it is saved and opened again.
struct lost_value {
  std::string value;
  value_fate fate = value_fate::kChanged;
  const dvblock* block = nullptr;  // whose it is, else the net's
  const net* wire = nullptr;
};

// The blocks' first.
std::vector<lost_value> LostValues(const design& document);

// "block 3, AMP" or "net 7".
std::string OwnerName(const lost_value& of);

// The first value that makes the design's file unreadable, and whose it is: "\"a<b\" of block 3,
// AMP". "" when there is none.
std::string ValueThatBreaksFile(const design& document);

}  // namespace mardel
