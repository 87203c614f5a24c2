// fail_calls: fails each system call of a save in turn, alone and with all that follow it, each
// with several errors. The file must be the whole old one or the whole new one, as the save says,
// and the next save must leave nothing but the file. Prints figures, or what was found instead.
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "platform/files.h"
#include "tests/support/files.h"

namespace mardel {
namespace {

enum class call_kind { kAny, kMakesFile, kRename };

struct plan {
  call_kind refused = call_kind::kAny;  // always, unless kAny
  int first = 0, last = 0;              // numbers from 1 of the calls that fail; 0 for none
  int error = 0;
};

struct faults : plan {
  int calls = 0;
  bool are_on = false;
};

faults& Faults() {
  static faults those;
  return those;
}

bool Fails(call_kind kind) {
  faults& of = Faults();
  if (!of.are_on) return false;
  ++of.calls;
  const bool is_refused = kind != call_kind::kAny && kind == of.refused;
  if (!is_refused && (of.calls < of.first || of.calls > of.last)) return false;
  errno = is_refused ? EACCES : of.error;
  return true;
}

template <class result, class... parameters>
result Call(call_kind kind, const char* name, parameters... values) {
  if (Fails(kind)) return -1;
  return reinterpret_cast<result (*)(parameters...)>(dlsym(RTLD_NEXT, name))(values...);
}

call_kind KindOfOpen(int flags) {
  return (flags & O_CREAT) != 0 ? call_kind::kMakesFile : call_kind::kAny;
}

}  // namespace

// Comes before the system's own function of that name.
#define REPLACE(result, name, kind, parameters, ...)             \
  extern "C" result Failing##name parameters __asm__(#name);     \
  result Failing##name parameters {                              \
    return Call<result>(kind, #name __VA_OPT__(, ) __VA_ARGS__); \
  }
constexpr call_kind kAny = call_kind::kAny;
REPLACE(int, stat, kAny, (const char* path, struct stat* found), path, found)
REPLACE(int, lstat, kAny, (const char* path, struct stat* found), path, found)
REPLACE(int, fstat, kAny, (int file, struct stat* found), file, found)
REPLACE(int, faccessat, kAny, (int in, const char* path, int mode, int how), in, path, mode, how)
REPLACE(ssize_t, readlink, kAny, (const char* path, char* to, size_t size), path, to, size)
REPLACE(int, open, KindOfOpen(how), (const char* path, int how, mode_t mode), path, how, mode)
REPLACE(int, flock, kAny, (int file, int how), file, how)
REPLACE(ssize_t, read, kAny, (int file, void* to, size_t size), file, to, size)
REPLACE(ssize_t, pwrite, kAny, (int file, const void* from, size_t size, off_t at), file, from,
        size, at)
REPLACE(int, fchown, kAny, (int file, uid_t user, gid_t group), file, user, group)
REPLACE(int, fchmod, kAny, (int file, mode_t mode), file, mode)
REPLACE(int, ftruncate, kAny, (int file, off_t size), file, size)
REPLACE(int, rename, call_kind::kRename, (const char* from, const char* to), from, to)
REPLACE(int, unlink, kAny, (const char* path), path)
// Is not waited for.
extern "C" int FailingFlush(int file) __asm__("fsync");
int FailingFlush(int /*file*/) {
  return Fails(kAny) ? -1 : 0;
}

namespace {

enum class target_kind { kNew, kOld, kLink };

struct scene {
  const char* name;
  target_kind target;
  const char* before;
  call_kind refused;
};
constexpr scene kScenes[] = {
    {"a new file", target_kind::kNew, "none", call_kind::kAny},
    {"an old file", target_kind::kOld, "old", call_kind::kAny},
    {"a link", target_kind::kLink, "old", call_kind::kAny},
    {"a closed folder", target_kind::kOld, "old", call_kind::kMakesFile},
    {"a sticky folder", target_kind::kOld, "a longer old one", call_kind::kRename},
};

struct figures {
  int saves = 0;
  int by_status[4] = {};
};

std::string Content(const std::string& folder) {
  return IsRegularFile(folder + "file") ? ReadAll(folder + "file") : "none";
}

write_status Save(const std::string& path, const plan& meant) {
  static_cast<plan&>(Faults()) = meant;
  Faults().calls = 0;
  Faults().are_on = true;
  const write_status status = ReplaceFile(path, "new text");
  Faults().are_on = false;
  return status;
}

// Null when all is well.
const char* FaultAfter(write_status status, const plan& meant, const std::string& before,
                       const std::string& after) {
  if (after != before && after != "new text" && status != write_status::kDamaged) return "torn";
  switch (status) {
    case write_status::kWritten:
      return after == "new text" ? nullptr : "not written";
    case write_status::kNotCreated:
      if (meant.error != EACCES) return "a fault is silent";
      [[fallthrough]];
    case write_status::kFailed:
      return after == before ? nullptr : "the old file was not kept";
    case write_status::kDamaged:
      return meant.refused != kAny && meant.last > meant.first ? nullptr : "damaged";
  }
  return "no status";
}

const char* TryOne(const scene& at, const plan& meant, figures& count) {
  constexpr std::filesystem::perms kMode{0640};
  const scratch_folder scratch;
  const std::string& folder = scratch.Path();
  const std::string file = folder + "file";
  const bool by_link = at.target == target_kind::kLink;
  if (by_link) std::filesystem::create_symlink("file", folder + "link");
  if (at.target != target_kind::kNew) {
    WriteAll(file, at.before);
    std::filesystem::permissions(file, kMode);
  }
  const std::string path = by_link ? folder + "link" : file;
  const write_status status = Save(path, meant);
  ++count.saves;
  ++count.by_status[static_cast<int>(status)];
  if (const char* fault = FaultAfter(status, meant, at.before, Content(folder))) return fault;
  if (Save(path, {at.refused}) != write_status::kWritten) return "the next save failed";
  if (at.target != target_kind::kNew && std::filesystem::status(file).permissions() != kMode) {
    return "other permissions";
  }
  const auto files = std::distance(std::filesystem::directory_iterator(folder), {});
  return files > (by_link ? 2 : 1) ? "a leftover" : nullptr;
}

bool TryScene(const scene& at, figures& count) {
  constexpr int kErrors[] = {EIO, ENOSPC, EMFILE, EACCES};
  constexpr int kEver = 1000;
  if (TryOne(at, {at.refused}, count) != nullptr) return false;
  const int calls = Faults().calls;
  for (const int error : kErrors) {
    for (int call = 1; call <= calls; ++call) {
      for (const int last : {call, kEver}) {
        const char* fault = TryOne(at, {at.refused, call, last, error}, count);
        if (fault == nullptr) continue;
        std::fprintf(stderr, "%s, %s from call %d to %d: %s\n", at.name, std::strerror(error), call,
                     last, fault);
        return false;
      }
    }
  }
  return true;
}

}  // namespace
}  // namespace mardel

int main() {
  mardel::figures count;
  for (const mardel::scene& at : mardel::kScenes) {
    if (!mardel::TryScene(at, count)) return 1;
  }
  std::printf("%d saves: %d written, %d not created, %d failed, %d damaged and told so: OK\n",
              count.saves, count.by_status[0], count.by_status[1], count.by_status[2],
              count.by_status[3]);
}
