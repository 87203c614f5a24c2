#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#if defined(__linux__)
#include <sys/xattr.h>
#endif

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <filesystem>

#include "platform/file_lock.h"
#include "platform/files.h"
#include "platform/new_file.h"
#include "platform/path.h"
#include "platform/temporary.h"

namespace mardel {
namespace {

// A write beyond the process's file-size limit is an error like a full disk, not its end. The
// signal for it goes to the thread that writes.
class size_limit_signal_held {
 public:
  size_limit_signal_held() {
    sigemptyset(&signal_);
    sigaddset(&signal_, SIGXFSZ);
    pthread_sigmask(SIG_BLOCK, &signal_, &before_);
  }
  size_limit_signal_held(const size_limit_signal_held&) = delete;
  size_limit_signal_held& operator=(const size_limit_signal_held&) = delete;
  ~size_limit_signal_held() {
    sigset_t pending;
    int taken = 0;
    if (sigpending(&pending) == 0 && sigismember(&pending, SIGXFSZ) == 1) sigwait(&signal_, &taken);
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
  }

 private:
  sigset_t signal_{}, before_{};
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

// Errors that say that no file can stand there, or not for this user. Any other may pass, or tells
// of a broken disk.
write_status WriteStatusOf(int error) {
  switch (error) {
    case EACCES:
    case EPERM:
    case ENOENT:
    case ENOTDIR:
    case EISDIR:
    case EROFS:
    case ELOOP:
    case ENAMETOOLONG:
      return write_status::kNotCreated;
  }
  return write_status::kFailed;
}

// Errors of a folder that takes no new file, or not in place of the old one: another's file in a
// shared folder, a mount point.
bool IsClosed(int error) {
  switch (error) {
    case EACCES:
    case EPERM:
    case EROFS:
    case ENAMETOOLONG:
    case EBUSY:
    case EXDEV:
      return true;
  }
  return false;
}

// Leads `path` to where its links do, although nothing may stand there yet.
std::error_code FollowLinks(std::filesystem::path& path) {
  constexpr int kMostLinks = 40;  // as the system itself follows
  for (int link = 0; link < kMostLinks; ++link) {
    std::error_code problem;
    const std::filesystem::path next = std::filesystem::read_symlink(path, problem);
    const bool is_end =
        problem == std::errc::invalid_argument || problem == std::errc::no_such_file_or_directory;
    if (is_end) return {};
    if (problem) return problem;
    path = path.parent_path() / next;  // an absolute `next` replaces the whole
  }
  return std::make_error_code(std::errc::too_many_symbolic_link_levels);
}

// The target as it is before the save.
struct old_file {
  bool exists = false;
  struct stat status{};
};

#if defined(__linux__)
// The list of who else may do what, or none. With one the group's permissions bound it; without,
// they are the group's own.
bool TakeOverList(const descriptor& file, const std::string& target) {
  constexpr const char* kList = "system.posix_acl_access";
  const ssize_t size = getxattr(target.c_str(), kList, nullptr, 0);
  if (size <= 0) {
    fremovexattr(file.Number(), kList);  // which the folder may have given it
    return true;
  }
  std::string list(static_cast<std::size_t>(size), '\0');
  return getxattr(target.c_str(), kList, list.data(), list.size()) == size &&
         fsetxattr(file.Number(), kList, list.data(), list.size(), 0) == 0;
}
#else
bool TakeOverList(const descriptor& /*file*/, const std::string& /*target*/) {
  return true;
}
#endif

// Old permissions, and the old owner where this user may give files away. False when the file would
// keep others than the old permissions, although its file system has some.
bool TakeOver(const descriptor& file, const std::string& target, const old_file& old) {
  if (!old.exists) return true;
  if (fchown(file.Number(), old.status.st_uid, old.status.st_gid) != 0) {
    static_cast<void>(fchown(file.Number(), static_cast<uid_t>(-1), old.status.st_gid) == 0);
  }
  // Without its list the file is no worse off than to be closed to the group.
  const mode_t kept = TakeOverList(file, target) ? 07777U : 07707U;
  return fchmod(file.Number(), old.status.st_mode & kept) == 0 || errno == EPERM ||
         errno == ENOTSUP;
}

// What is longer than before is written first: while that fails, the old content is untouched.
bool Overwrite(const descriptor& file, std::string_view content, std::size_t old_size) {
  const std::size_t common = std::min(old_size, content.size());
  return WriteAt(file, content.substr(common), common) &&
         WriteAt(file, content.substr(0, common), 0) &&
         ftruncate(file.Number(), static_cast<off_t>(content.size())) == 0 && Flush(file);
}

// What can't be read first, or is being written by another save, stays as it is.
write_status WriteInPlace(const std::string& target, std::string_view content) {
  const descriptor file(open(target.c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  if (!file.IsOpen()) return WriteStatusOf(errno);
  if (!LockOpenFile(file)) return write_status::kFailed;
  const std::optional<std::string> old = ReadFile(target);
  if (!old) return write_status::kFailed;
  if (Overwrite(file, content, old->size())) return write_status::kWritten;
  // The old content's room on the disk is still the file's own.
  WriteAt(file, *old, 0);
  const bool is_cut = ftruncate(file.Number(), static_cast<off_t>(old->size())) == 0;
  const bool is_old = is_cut && Flush(file) && ReadFile(target) == old;
  return is_old ? write_status::kFailed : write_status::kDamaged;
}

write_status WithoutTemporary(const std::string& target, std::string_view content, int error,
                              const old_file& old) {
  return old.exists && IsClosed(error) ? WriteInPlace(target, content) : WriteStatusOf(error);
}

write_status ReplaceTarget(const std::string& target, std::string_view content,
                           const old_file& old) {
  const mode_t mode = old.exists ? 0600 : 0666;  // nobody sees more of the new than of the old
  const temporary beside = MakeTemporary(target, mode);
  if (!beside.file.IsOpen()) return WithoutTemporary(target, content, beside.error, old);

  if (!WriteAt(beside.file, content, 0) || !TakeOver(beside.file, target, old) ||
      !Flush(beside.file)) {
    unlink(beside.path.c_str());
    return write_status::kFailed;
  }
  if (rename(beside.path.c_str(), target.c_str()) != 0) {
    const int error = errno;
    unlink(beside.path.c_str());
    if (error == ENOENT) return write_status::kFailed;  // somebody removed it, or the folder
    return WithoutTemporary(target, content, error, old);
  }
  FlushFolder(target);
  return write_status::kWritten;
}

// 0, or why not. Another file's name is never taken.
int GiveNewName(const std::string& from, const std::string& to) {
#if defined(RENAME_NOREPLACE)
  if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return 0;
  if (errno == EEXIST) return EEXIST;
#endif
  constexpr int kReserve = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
  if (const descriptor reserved(open(to.c_str(), kReserve, 0666)); !reserved.IsOpen()) return errno;
  if (rename(from.c_str(), to.c_str()) == 0) return 0;
  const int error = errno;
  unlink(to.c_str());
  return error;
}

}  // namespace

new_file_status WriteNewFile(const std::string& path, std::string_view content) {
  const size_limit_signal_held held;
  const temporary beside = MakeTemporary(path, 0666);
  if (!beside.file.IsOpen()) return new_file_status::kFailed;
  const bool is_written = WriteAt(beside.file, content, 0) && Flush(beside.file);
  const int error = is_written ? GiveNewName(beside.path, path) : EIO;
  if (error == 0) {
    FlushFolder(path);
    return new_file_status::kMade;
  }
  unlink(beside.path.c_str());
  return error == EEXIST ? new_file_status::kNameTaken : new_file_status::kFailed;
}

write_status ReplaceFile(const std::string& path, std::string_view content) {
  const size_limit_signal_held held;
  old_file old;
  old.exists = stat(path.c_str(), &old.status) == 0;
  if (!old.exists && errno != ENOENT) return WriteStatusOf(errno);
  if (old.exists && !S_ISREG(old.status.st_mode)) return write_status::kNotCreated;
  // A file protected from writing is not replaced, though its folder would allow it.
  if (old.exists && faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) {
    return WriteStatusOf(errno);
  }
  std::filesystem::path target = path;
  if (const std::error_code problem = FollowLinks(target)) return WriteStatusOf(problem.value());
  if (!target.has_filename()) return write_status::kNotCreated;
  return ReplaceTarget(target.string(), content, old);
}

std::string_view FateOfOldFile(write_status fault) {
  return fault == write_status::kDamaged ? "and the old file may be damaged."
                                         : "the old file was kept.";
}

}  // namespace mardel
