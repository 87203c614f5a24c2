// Reads library files (".dvl").
#pragma once

#include <string>

#include "library/library_set.h"
#include "platform/ui.h"

namespace mardel {

// Loads every library file of `folder` (ends in "/") in the order the system lists them and appends
// one submenu each. Problems are shown and skip only the rest of that file. The built-in libraries
// come first: what a file says before its name goes to the library that is current.
void LoadLibraryFiles(library_set& set, menu_builder& builder, const std::string& folder, ui& desk);

void LoadLibraryFile(library_set& set, menu_builder& builder, const std::string& path, ui& desk);

}  // namespace mardel
