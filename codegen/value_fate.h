// What becomes of a design's names and values in a file, which holds them as they stand.
#pragma once

#include <string>
#include <string_view>

#include "editor/design.h"

namespace mardel {

enum class value_fate { kKept, kChanged, kBreaksFile };

// Once it is saved and opened again.
value_fate FateOfValue(std::string_view value);

// The first value that makes the design's file unreadable, and whose it is: "\"a<b\" of block 3,
// AMP". "" when there is none.
std::string ValueThatBreaksFile(const design& document);

}  // namespace mardel
