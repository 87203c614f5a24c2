// The "Block Directory" window: every library and block with what its pins and parameters are for.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "library/library_set.h"
#include "platform/open_windows.h"

namespace mardel {

// Libraries at level 0, their blocks at level 1, a library once for each run of its definitions.
std::vector<tree_item> DirectoryTree(const library_set& set);

// What the window says of the tree's item `selected`; lines end in "\r\n".
std::string DirectoryText(const library_set& set, const std::vector<tree_item>& tree, int selected);

// The same of the first block of these names; "" when there is none.
std::string BlockText(const library_set& set, std::string_view lib, std::string_view sub);

// Opens a fresh window; it lives until the user closes it. `set` must outlive it.
void OpenBlockDirectory(const library_set& set, open_windows& windows);

}  // namespace mardel
