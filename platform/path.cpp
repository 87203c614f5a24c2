#include "platform/path.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace mardel {
namespace {

std::filesystem::path Native(const std::string& path) {
  return std::u8string(path.begin(), path.end());
}

}  // namespace

std::string_view FileName(std::string_view path) {
  return path.substr(path.rfind('/') + 1);
}

std::string FolderOf(std::string_view path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string_view::npos ? "./" : std::string(path.substr(0, slash + 1));
}

void EndFolderWithSlash(std::string& folder) {
  if (!folder.ends_with('/')) folder += '/';
}

std::string AbsolutePath(const std::string& path) {
  std::error_code error;
  auto absolute = std::filesystem::absolute(Native(path), error);
  if (error) return path;
  if (std::ranges::count(absolute, std::filesystem::path("..")) > 0) {
    // Behind a link, ".." leads up from where the link leads.
    const auto folder = std::filesystem::weakly_canonical(absolute.parent_path(), error);
    if (error) return path;
    absolute = folder / absolute.filename();
  }
  const std::u8string text = absolute.lexically_normal().generic_u8string();
  return {text.begin(), text.end()};
}

bool IsSameFile(const std::string& first, const std::string& second) {
  std::error_code error;
  return std::filesystem::equivalent(Native(first), Native(second), error);
}

}  // namespace mardel
