#include "platform/new_folder.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>

#include "platform/files.h"

namespace mardel {
namespace {

namespace fs = std::filesystem;

std::error_code Fill(const fs::path& folder, std::span<const new_file> files) {
  std::error_code error;
  fs::create_directory(folder, error);
  for (const new_file& each : files) {
    if (error) break;
    const fs::path path = folder / each.name;
    fs::create_directories(path.parent_path(), error);
    if (!error && ReplaceFile(path, each.content) != write_status::kWritten) {
      error.assign(errno, std::generic_category());
    }
  }
  return error;
}

}  // namespace

std::error_code MakeFolder(const std::string& path, std::span<const new_file> files) {
  const fs::path target = path.ends_with('/') ? fs::path(path).parent_path() : fs::path(path);
  std::error_code error;
  if (fs::exists(fs::symlink_status(target, error))) return make_error_code(std::errc::file_exists);
  fs::create_directories(target.parent_path(), error);
  if (error) return error;
  // In a folder that nobody else can reach, the new one gets its name and its permissions.
  std::string nest = target.parent_path() / ".mardel-XXXXXX";
  if (mkdtemp(nest.data()) == nullptr) return {errno, std::generic_category()};
  const fs::path fresh = nest / target.filename();
  error = Fill(fresh, files);
  // Replaces at most an empty folder, which somebody else has just made.
  if (!error) fs::rename(fresh, target, error);
  std::error_code left_behind;
  fs::remove_all(nest, left_behind);
  return error;
}

}  // namespace mardel
