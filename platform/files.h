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
// waited for), can't be read, or holds more than kMostFileBytes or than memory has room for.
std::optional<std::string> ReadFile(const std::string& path);

// All of standard input; nothing when it can't be read or goes on beyond kMostFileBytes.
std::optional<std::string> ReadStandardInput();

enum class [[nodiscard]] write_status {
  kWritten,
  kNotCreated,  // no file may stand or be written there; nothing was touched
  kFailed,      // disk full or any other fault; what stood there before still stands
  kDamaged,     // the same, but a write in place broke off and could not be taken back
};

constexpr bool IsFault(write_status status) {
  return status == write_status::kFailed || status == write_status::kDamaged;
}

// Replaces a file as a whole, so that a crash or a full disk never costs the old content: written
// beside the target, flushed, renamed. Links are followed and permissions kept. Where the folder
// takes no new file or no rename, but the target itself can be written, it is written in place.
write_status ReplaceFile(const std::string& path, std::string_view content);

// What to say of the old file after a fault, at the end of a sentence.
std::string_view FateOfOldFile(write_status fault);

// Follows links.
bool IsRegularFile(const std::string& path);

// Names (not paths) of the entries in `folder` that end in `suffix` and are no folders, in the
// order the system lists them, unsorted. Empty when the folder can't be listed.
std::vector<std::string> ListFiles(const std::string& folder, std::string_view suffix);

// "" when the system can't name it.
std::string CurrentFolder();

}  // namespace mardel
