// Reads library files (".dvl").
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "library/builtin_libraries.h"
#include "library/library_set.h"
#include "library/report.h"

namespace mardel {

struct [[nodiscard]] loaded_libraries {
  library_set libraries;
  int next_id = 0;              // the first menu id that none of them took
  std::vector<report> reports;  // in the order in which they arose
};

// The built-in libraries, then those of `folder`. Menu ids are taken from `first_id` on.
loaded_libraries LoadLibraries(const std::string& folder, expert_mode mode, int first_id,
                               const text_metrics& metrics);

// Loads every library file of `folder` (ends in "/") in the order the system lists them. A problem
// skips only the rest of its file. What a file says before its name goes to the library that is
// current; there must be one.
[[nodiscard]] std::vector<report> LoadLibraryFiles(library_loading& so_far,
                                                   const std::string& folder);

[[nodiscard]] std::optional<report> LoadLibraryFile(library_loading& so_far,
                                                    const std::string& path);

}  // namespace mardel
