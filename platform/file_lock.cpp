#include "platform/file_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace mardel {

file_lock LockFile(const std::string& path, lock_target target) {
  const bool is_new = target == lock_target::kNewFile;
  const int fresh = is_new ? O_EXCL : 0;
  descriptor file(
      open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | fresh, 0600));
  if (!file.IsOpen()) return {descriptor(), is_new && (errno == EEXIST || errno == ENOENT)};
  if (flock(file.Number(), LOCK_EX | LOCK_NB) != 0) {
    const bool is_held = errno == EWOULDBLOCK;
    if (!is_held && is_new) unlink(path.c_str());
    return {descriptor(), is_held};
  }
  // Between the two calls its last holder may have removed it.
  if (!IsNamed(file, path)) return {descriptor(), is_new};
  return {std::move(file), false};
}

bool LockOpenFile(const descriptor& file) {
  return flock(file.Number(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

bool IsNamed(const descriptor& file, const std::string& path) {
  struct stat open_one{};
  struct stat named{};
  return fstat(file.Number(), &open_one) == 0 && lstat(path.c_str(), &named) == 0 &&
         open_one.st_dev == named.st_dev && open_one.st_ino == named.st_ino;
}

}  // namespace mardel
