#include "platform/temporary.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "platform/file_lock.h"
#include "platform/files.h"
#include "platform/path.h"
#include "platform/utf8.h"

namespace mardel {
namespace {

constexpr int kNames = 64;    // for as many saves of one file at once
constexpr int kAttempts = 8;  // at one name, while others remove what was just made
// Leaves room for the rest of the temporary's name on file systems with short names.
constexpr std::size_t kMostStem = 100;

std::string TemporaryPath(const std::string& target, int number) {
  const std::string stem(Beginning(FileName(target), kMostStem));
  return FolderOf(target) + "." + stem + ".mardel-" + std::to_string(number) + ".tmp";
}

// False when something stands there that is in use or can't be removed.
bool RemoveLeftover(const std::string& path) {
  const descriptor leftover(open(path.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  if (!leftover.IsOpen()) return errno == ENOENT;
  // Whoever holds the lock on what has this name is alone in renaming or removing it.
  return LockOpenFile(leftover) && IsNamed(leftover, path) && unlink(path.c_str()) == 0;
}

temporary MakeAt(const std::string& path, mode_t mode) {
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    descriptor made(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode));
    if (!made.IsOpen() && errno != EEXIST) return {descriptor(), path, errno};
    if (made.IsOpen() && LockOpenFile(made) && IsNamed(made, path))
      return {std::move(made), path, 0};
    if (!made.IsOpen() && !RemoveLeftover(path)) break;
  }
  return {descriptor(), path, EEXIST};
}

}  // namespace

temporary MakeTemporary(const std::string& target, mode_t mode) {
  temporary made{descriptor(), {}, EEXIST};
  for (int number = 0; number < kNames; ++number) {
    const std::string path = TemporaryPath(target, number);
    if (made.file.IsOpen()) {
      RemoveLeftover(path);
      continue;
    }
    made = MakeAt(path, mode);
    if (!made.file.IsOpen() && made.error != EEXIST) break;
  }
  return made;
}

void FlushFolder(const std::string& path) {
  const descriptor folder(open(FolderOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (folder.IsOpen()) fsync(folder.Number());
}

}  // namespace mardel
