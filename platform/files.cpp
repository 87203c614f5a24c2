#include "platform/files.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <memory>
#include <new>

#include "platform/temporary.h"

namespace mardel {
namespace {

std::optional<std::string> ReadToEnd(const descriptor& file, std::size_t expected_size) try {
  std::string content(expected_size + 1, '\0');
  std::size_t size = 0;
  while (true) {
    if (size == content.size()) content.resize(2 * size);
    const ssize_t count = read(file.Number(), content.data() + size, content.size() - size);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return std::nullopt;
    if (count == 0) break;
    size += static_cast<std::size_t>(count);
    if (size > kMostFileBytes) return std::nullopt;
  }
  content.resize(size);
  return content;
} catch (const std::bad_alloc&) {
  return std::nullopt;
}

bool IsFolder(DIR* folder, const dirent& entry) {
  if (entry.d_type == DT_DIR) return true;
  if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) return false;
  struct stat found{};
  return fstatat(dirfd(folder), entry.d_name, &found, 0) == 0 && S_ISDIR(found.st_mode);
}

}  // namespace

std::optional<std::string> ReadFile(const std::string& path) {
  if (!IsRegularFile(path)) return std::nullopt;  // opening a device may already have an effect
  const descriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  struct stat found{};
  if (!file.IsOpen() || fstat(file.Number(), &found) != 0) return std::nullopt;
  if (!S_ISREG(found.st_mode) || found.st_size > static_cast<off_t>(kMostFileBytes)) {
    return std::nullopt;
  }
  return ReadToEnd(file, static_cast<std::size_t>(found.st_size));
}

std::optional<std::string> ReadStandardInput() {
  constexpr std::size_t kExpectedSize = std::size_t{1} << 16U;
  const descriptor input(dup(STDIN_FILENO));
  return input.IsOpen() ? ReadToEnd(input, kExpectedSize) : std::nullopt;
}

bool IsRegularFile(const std::string& path) {
  struct stat found{};
  return stat(path.c_str(), &found) == 0 && S_ISREG(found.st_mode);
}

std::vector<std::string> ListFiles(const std::string& folder, std::string_view suffix) {
  std::vector<std::string> names;
  const std::unique_ptr<DIR, int (*)(DIR*)> listing(opendir(folder.c_str()), &closedir);
  if (listing == nullptr) return names;
  while (const dirent* entry = readdir(listing.get())) {
    const std::string_view name = entry->d_name;
    if (name.ends_with(suffix) && !IsFolder(listing.get(), *entry)) names.emplace_back(name);
  }
  return names;
}

std::string CurrentFolder() {
  std::error_code unknown;
  return std::filesystem::current_path(unknown).string();
}

}  // namespace mardel
