// Paths as text, in UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace mardel {

// The part after the last "/".
std::string_view FileName(std::string_view path);

// The path up to and with its last "/"; "./" when it has none.
std::string FolderOf(std::string_view path);

// kept: an empty folder becomes "/".
void EndFolderWithSlash(std::string& folder);

// By the current folder; `path` itself when the system can't name that.
std::string AbsolutePath(const std::string& path);

// Whether both name one existing file, links followed.
bool IsSameFile(const std::string& first, const std::string& second);

}  // namespace mardel
