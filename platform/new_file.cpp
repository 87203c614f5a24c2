#include "platform/new_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/files.h"
#include "platform/temporary.h"

namespace mardel {
namespace {

new_file_status CopyFile(const std::string& from, const std::string& to) {
  const std::optional<std::string> content = ReadFile(from);
  return content ? WriteNewFile(to, *content) : new_file_status::kFailed;
}

}  // namespace

new_file_status MoveFile(const std::string& from, const std::string& to) {
  // Unlike a rename, a link never takes another file's name.
  if (link(from.c_str(), to.c_str()) == 0) {
    FlushFolder(to);
  } else if (errno == EEXIST) {
    return new_file_status::kNameTaken;
  } else if (const new_file_status made = CopyFile(from, to); made != new_file_status::kMade) {
    return made;
  }
  // A faulty disk may refuse, and yet have done it.
  if (unlink(from.c_str()) == 0 || !FactsOf(from)) return new_file_status::kMade;
  unlink(to.c_str());  // else each start would move it once more
  return new_file_status::kFailed;
}

std::optional<file_facts> FactsOf(const std::string& path) {
  struct stat found{};
  if (lstat(path.c_str(), &found) != 0 || !S_ISREG(found.st_mode)) return std::nullopt;
  return file_facts{.size = static_cast<std::size_t>(found.st_size),
                    .written = LocalTime(found.st_mtime),
                    .is_own = found.st_uid == geteuid()};
}

}  // namespace mardel
