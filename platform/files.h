// Files and folders of the host. Paths are UTF-8; a folder's path ends in "/".
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace mardel {

constexpr std::size_t kMostFileBytes = std::size_t{64} << 20U;

// The whole content; nothing when `path` is no regular file (folders, FIFOs and devices are never
// waited for), can't be read, or holds more than kMostFileBytes.
std::optional<std::string> ReadFile(const std::string& path);

enum class [[nodiscard]] write_status{
    kWritten,
    kNotCreated,  // no file could be made there; nothing was touched
    kFailed,      // disk full or the like in the middle; what stood there before still stands
};

// Replaces a file as a whole, so that a crash or a full disk never costs the old content: written
// beside the target, flushed, renamed. Links are followed and permissions kept. Where the folder
// takes no new file but the target itself can be written, it is written in place.
write_status ReplaceFile(const std::string& path, std::string_view content);

// Follows links.
bool IsRegularFile(const std::string& path);

// Names (not paths) of the entries in `folder` that end in `suffix` and are no folders, in the
// order the system lists them, unsorted. Empty when the folder can't be listed.
std::vector<std::string> ListFiles(const std::string& folder, std::string_view suffix);

// "" when the system can't name it.
std::string CurrentFolder();

}  // namespace mardel
