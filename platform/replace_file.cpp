#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <filesystem>

#include "platform/files.h"
#include "platform/path.h"
#include "platform/temporary.h"

namespace mardel {
namespace {

// A write beyond the process's file-size limit is an error like a full disk, not its end.
class size_limit_signal_ignored {
 public:
  size_limit_signal_ignored() {
    struct sigaction ignore{};
    ignore.sa_handler = SIG_IGN;
    sigaction(SIGXFSZ, &ignore, &before_);
  }
  size_limit_signal_ignored(const size_limit_signal_ignored&) = delete;
  size_limit_signal_ignored& operator=(const size_limit_signal_ignored&) = delete;
  ~size_limit_signal_ignored() { sigaction(SIGXFSZ, &before_, nullptr); }

 private:
  struct sigaction before_{};
};

bool WriteAt(const descriptor& file, std::string_view content, std::size_t place) {
  while (!content.empty()) {
    const ssize_t count =
        pwrite(file.Number(), content.data(), content.size(), static_cast<off_t>(place));
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    content.remove_prefix(static_cast<std::size_t>(count));
    place += static_cast<std::size_t>(count);
  }
  return true;
}

// True also where the file system knows no flushing.
bool Flush(const descriptor& file) {
  return fsync(file.Number()) == 0 || errno == EINVAL || errno == ENOTSUP;
}

// Where links lead, although nothing may stand there yet.
std::filesystem::path FollowLinks(std::filesystem::path path) {
  constexpr int kMostLinks = 40;  // as the system itself follows
  std::error_code no_link;
  for (int link = 0; link < kMostLinks; ++link) {
    const std::filesystem::path next = std::filesystem::read_symlink(path, no_link);
    if (no_link) break;
    path = path.parent_path() / next;  // an absolute `next` replaces the whole
  }
  return path;
}

// The target as it is before the save.
struct old_file {
  bool exists = false;
  struct stat status{};
};

// Old permissions, and the old owner where this user may give files away.
void TakeOver(const descriptor& file, const old_file& old) {
  if (!old.exists) return;
  if (fchown(file.Number(), old.status.st_uid, old.status.st_gid) != 0) {
    static_cast<void>(fchown(file.Number(), static_cast<uid_t>(-1), old.status.st_gid) == 0);
  }
  fchmod(file.Number(), old.status.st_mode & 07777U);
}

bool IsFullDisk(int error) {
  return error == ENOSPC || error == EDQUOT || error == EIO || error == EFBIG;
}

// What is longer than before is written first: while that fails, the old content is untouched.
bool Overwrite(const descriptor& file, std::string_view content, std::size_t old_size) {
  const std::size_t common = std::min(old_size, content.size());
  return WriteAt(file, content.substr(common), common) &&
         WriteAt(file, content.substr(0, common), 0) &&
         ftruncate(file.Number(), static_cast<off_t>(content.size())) == 0 && Flush(file);
}

write_status WriteInPlace(const std::string& target, std::string_view content) {
  const std::optional<std::string> old_content = ReadFile(target);
  const descriptor file(open(target.c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  struct stat old{};
  if (!file.IsOpen() || fstat(file.Number(), &old) != 0 || !S_ISREG(old.st_mode)) {
    return write_status::kNotCreated;
  }
  if (Overwrite(file, content, static_cast<std::size_t>(old.st_size))) {
    return write_status::kWritten;
  }
  // The old content's room on the disk is still the file's own.
  if (old_content) WriteAt(file, *old_content, 0);
  if (ftruncate(file.Number(), old.st_size) == 0) Flush(file);
  return write_status::kFailed;
}

write_status WithoutTemporary(const std::string& target, std::string_view content, int error,
                              const old_file& old) {
  if (IsFullDisk(error)) return write_status::kFailed;
  return old.exists ? WriteInPlace(target, content) : write_status::kNotCreated;
}

write_status ReplaceTarget(const std::string& target, std::string_view content,
                           const old_file& old) {
  const mode_t mode = old.exists ? 0600 : 0666;  // nobody sees more of the new than of the old
  const temporary beside = MakeTemporary(target, mode);
  if (!beside.file.IsOpen()) return WithoutTemporary(target, content, beside.error, old);

  const bool written = WriteAt(beside.file, content, 0);
  if (written) TakeOver(beside.file, old);
  if (!written || !Flush(beside.file)) {
    unlink(beside.path.c_str());
    return write_status::kFailed;
  }
  if (rename(beside.path.c_str(), target.c_str()) != 0) {
    const int error = errno;  // another's file in a shared folder, or a mount point
    unlink(beside.path.c_str());
    return WithoutTemporary(target, content, error, old);
  }
  FlushFolder(target);
  return write_status::kWritten;
}

}  // namespace

write_status ReplaceFile(const std::string& path, std::string_view content) {
  const size_limit_signal_ignored ignored;
  old_file old;
  old.exists = stat(path.c_str(), &old.status) == 0;
  if (!old.exists && errno != ENOENT) return write_status::kNotCreated;
  // A file protected from writing is not replaced, though its folder would allow it.
  if (old.exists &&
      (!S_ISREG(old.status.st_mode) || faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0)) {
    return write_status::kNotCreated;
  }
  const std::string target = FollowLinks(path).string();
  if (FileName(target).empty()) return write_status::kNotCreated;
  return ReplaceTarget(target, content, old);
}

}  // namespace mardel
