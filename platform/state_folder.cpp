#include "platform/state_folder.h"

#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <string_view>

namespace mardel {
namespace {

// "" when it is unset, or relative, which would lead elsewhere from each folder.
std::string AbsoluteFolder(const char* variable) {
  const char* const value = std::getenv(variable);
  return value != nullptr && *value == '/' ? std::string(value) + "/" : std::string();
}

}  // namespace

std::string StateFolder() {
  const std::string state = AbsoluteFolder("XDG_STATE_HOME");
  if (!state.empty()) return state + "mardel/";
  const std::string home = AbsoluteFolder("HOME");
  return home.empty() ? "" : home + ".local/state/mardel/";
}

bool MakeFolders(const std::string& path, folder_reader reader) {
  const mode_t mode = reader == folder_reader::kOwner ? 0700 : 0777;
  for (std::size_t slash = path.find('/', 1); slash != std::string::npos;
       slash = path.find('/', slash + 1)) {
    mkdir(path.substr(0, slash).c_str(), mode);  // those that are there stay as they are
  }
  std::error_code missing;
  return std::filesystem::is_directory(path, missing);
}

new_file_status MakeNewFolder(const std::string& path) {
  if (mkdir(path.c_str(), 0700) == 0) return new_file_status::kMade;
  return errno == EEXIST ? new_file_status::kNameTaken : new_file_status::kFailed;
}

std::vector<std::string> ListFolders(const std::string& folder) {
  std::vector<std::string> names;
  std::error_code end;
  for (std::filesystem::directory_iterator entry(folder, end);
       !end && entry != std::filesystem::directory_iterator(); entry.increment(end)) {
    std::error_code unknown;
    if (entry->symlink_status(unknown).type() == std::filesystem::file_type::directory) {
      names.push_back(entry->path().filename().string());
    }
  }
  return names;
}

void RemoveIfPossible(const std::string& path) {
  std::error_code ignored;
  std::filesystem::remove(path, ignored);
}

std::vector<stored_file> FilesBelow(const std::string& folder) {
  using walk = std::filesystem::recursive_directory_iterator;
  std::vector<stored_file> files;
  std::error_code end;
  for (walk entry(folder, std::filesystem::directory_options::skip_permission_denied, end);
       !end && entry != walk(); entry.increment(end)) {
    struct stat found{};
    if (lstat(entry->path().c_str(), &found) != 0 || !S_ISREG(found.st_mode)) continue;
    files.push_back(
        {entry->path().string(), static_cast<std::size_t>(found.st_size), found.st_ctime});
  }
  return files;
}

}  // namespace mardel
