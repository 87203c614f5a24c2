#include "platform/file_reasons.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "platform/descriptor.h"
#include "platform/path.h"

namespace mardel {
namespace {

std::string Reason(int error) {
  return std::strerror(error);
}

bool IsFolder(const std::string& path) {
  struct stat found{};
  return stat(path.c_str(), &found) == 0 && S_ISDIR(found.st_mode);
}

}  // namespace

std::string ReadingFailure(const std::string& path) {
  if (IsFolder(path)) return Reason(EISDIR);
  if (access(path.c_str(), R_OK) != 0) return Reason(errno);
  struct stat found{};
  if (stat(path.c_str(), &found) != 0 || !S_ISREG(found.st_mode)) return "Not a regular file";
  return found.st_size > static_cast<off_t>(kMostFileBytes) ? Reason(EFBIG)
                                                            : "disk fault or too little memory";
}

std::string WritingFailure(const std::string& path, write_status how) {
  if (how == write_status::kDamaged) return "disk full or the like; the old file may be damaged";
  if (how == write_status::kFailed) return "disk full or the like";
  if (IsFolder(path)) return Reason(EISDIR);
  struct stat found{};
  if (stat(path.c_str(), &found) == 0) {
    if (access(path.c_str(), W_OK) != 0) return Reason(errno);
    return S_ISREG(found.st_mode) ? Reason(EACCES) : "Not a regular file";
  }
  if (errno != ENOENT) return Reason(errno);
  return access(FolderOf(path).c_str(), W_OK | X_OK) != 0 ? Reason(errno) : Reason(EACCES);
}

std::string ListingFailure(const std::string& folder) {
  const descriptor listed(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  return listed.IsOpen() ? "" : Reason(errno);
}

std::string StartingFailure(const std::string& program) {
  if (IsFolder(program)) return Reason(EISDIR);
  return access(program.c_str(), X_OK) != 0 ? Reason(errno) : Reason(ENOEXEC);
}

}  // namespace mardel
