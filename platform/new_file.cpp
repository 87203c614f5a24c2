#include "platform/new_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/files.h"
#include "platform/temporary.h"

namespace mardel {
namespace {

new_file_status StatusOf(int error) {
  return error == EEXIST ? new_file_status::kNameTaken : new_file_status::kFailed;
}

new_file_status CopyFile(const std::string& from, const std::string& to) {
  const std::optional<std::string> content = ReadFile(from);
  return content ? WriteNewFile(to, *content) : new_file_status::kFailed;
}

}  // namespace

new_file_status WriteNewFile(const std::string& path, std::string_view content) {
  constexpr int kReserve = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
  if (const descriptor reserved(open(path.c_str(), kReserve, 0666)); !reserved.IsOpen()) {
    return StatusOf(errno);
  }
  if (ReplaceFile(path, content) == write_status::kWritten) return new_file_status::kMade;
  unlink(path.c_str());
  return new_file_status::kFailed;
}

new_file_status MoveFile(const std::string& from, const std::string& to) {
  // Unlike a rename, a link never takes another file's name.
  new_file_status made = new_file_status::kMade;
  if (link(from.c_str(), to.c_str()) == 0) {
    FlushFolder(to);
  } else if (errno == EEXIST) {
    return new_file_status::kNameTaken;
  } else {
    made = CopyFile(from, to);
  }
  if (made == new_file_status::kMade) unlink(from.c_str());
  return made;
}

std::optional<file_facts> FactsOf(const std::string& path) {
  struct stat found{};
  if (lstat(path.c_str(), &found) != 0 || !S_ISREG(found.st_mode)) return std::nullopt;
  return file_facts{.size = static_cast<std::size_t>(found.st_size),
                    .written = LocalTime(found.st_mtime),
                    .is_own = found.st_uid == geteuid()};
}

}  // namespace mardel
