// The file that a save writes beside its target. Its name is fixed by the target's, so that the
// next save of the same file finds and removes what a killed one left. A lock, which ends with its
// process, tells such a leftover from the temporary of a save in progress; that one is left alone
// and the next name is taken.
#pragma once

#include <sys/types.h>

#include <string>
#include <string_view>

#include "platform/descriptor.h"

namespace mardel {

struct temporary {
  descriptor file;  // for writing; not open when none could be made
  std::string path;
  int error = 0;  // errno of the failure
};

// Makes an empty, locked temporary beside `target` and removes leftovers. `mode` is as for open.
temporary MakeTemporary(const std::string& target, mode_t mode);

// So that a new name beside `path` outlives a power failure.
void FlushFolder(const std::string& path);

}  // namespace mardel
