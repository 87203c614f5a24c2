// Paths as the command line takes them.
#pragma once

#include <string>

namespace mardel {

// By the current folder; `path` itself when the system can't name that.
std::string AbsolutePath(const std::string& path);

// Whether both name one existing file, links followed.
bool IsSameFile(const std::string& first, const std::string& second);

}  // namespace mardel
