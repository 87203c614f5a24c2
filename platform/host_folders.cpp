#include <cstdlib>
#include <filesystem>
#include <optional>

#include "platform/files.h"
#include "platform/host.h"

namespace mardel {
namespace {

std::string Variable(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? "" : value;
}

std::string WithSlash(std::string folder) {
  if (!folder.empty() && !folder.ends_with('/')) folder += '/';
  return folder;
}

// What the line `XDG_DOCUMENTS_DIR="..."` of the desktop's list of the user's folders names; of
// several the last one counts. It begins with "/" or "$HOME". Nothing without such a line.
std::optional<std::string> ListedDocuments(const std::string& home) {
  constexpr std::string_view kStart = "XDG_DOCUMENTS_DIR=";
  constexpr std::string_view kHome = "$HOME";
  const std::string configured = Variable("XDG_CONFIG_HOME");
  const std::string folder = configured.starts_with('/') ? configured + "/" : home + ".config/";
  const std::string text = ReadFile(folder + "user-dirs.dirs").value_or("");
  std::optional<std::string> listed;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = std::min(text.find('\n', start), text.size());
    std::string_view value = std::string_view(text).substr(start, end - start);
    start = end + 1;
    if (!value.starts_with(kStart)) continue;
    value.remove_prefix(kStart.size());
    if (value.ends_with('\r')) value.remove_suffix(1);
    if (value.size() >= 2 && value.starts_with('"') && value.ends_with('"')) {
      value = value.substr(1, value.size() - 2);
    }
    if (value.starts_with(kHome)) {
      listed = home.substr(0, home.size() - 1).append(value.substr(kHome.size()));
    } else if (value.starts_with('/')) {
      listed = value;
    }
  }
  return listed;
}

}  // namespace

host_kind HostKind() {
#if defined(__linux__)
  return host_kind::kLinux;
#elif defined(__APPLE__)
  return host_kind::kMac;
#elif defined(_WIN32)
  return host_kind::kWindows;
#else
  return host_kind::kOther;
#endif
}

host_folders HostFolders() {
  host_folders folders;
  folders.applications = HostKind() == host_kind::kLinux ? "/opt/" : "/Applications/";
  const std::string home = Variable("HOME");
  if (home.empty()) return folders;
  folders.home = WithSlash(std::filesystem::path(home).lexically_normal().string());
  const auto listed =
      HostKind() == host_kind::kLinux ? ListedDocuments(folders.home) : std::nullopt;
  folders.documents = WithSlash(listed.value_or(folders.home + "Documents"));
  return folders;
}

}  // namespace mardel
