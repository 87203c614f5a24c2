#include "app/paths.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace mardel {
namespace {

std::filesystem::path Native(const std::string& path) {
  return std::u8string(path.begin(), path.end());
}

}  // namespace

std::string AbsolutePath(const std::string& path) {
  std::error_code error;
  auto absolute = std::filesystem::absolute(Native(path), error);
  if (error) return path;
  if (std::count(absolute.begin(), absolute.end(), std::filesystem::path("..")) > 0) {
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
