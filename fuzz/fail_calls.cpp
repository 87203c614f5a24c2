// fail_calls: fails each system call of a save in turn, alone and with all that follow it, each
// with several errors. The file must be the whole old one or the whole new one, as the save says,
// and the next save must leave nothing but the file. The same of a recovery, the copy of unsaved
// work and the history: what is there stays whole. Prints figures, or what was found instead.
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <set>
#include <span>

#include "app/history.h"
#include "app/recovery.h"
#include "app/unsaved_copy.h"
#include "codegen/design_file.h"
#include "platform/files.h"
#include "tests/support/files.h"
#include "tests/support/fixed_metrics.h"
#include "tests/support/scripted_ui.h"

namespace mardel {
namespace {

enum class call_kind { kAny, kMakesFile, kRename, kLink, kNewName };

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
  const bool is_copied = of.refused == call_kind::kNewName && kind == call_kind::kLink;
  const bool is_refused = kind != call_kind::kAny && (kind == of.refused || is_copied);
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
REPLACE(int, renameat2, call_kind::kNewName,
        (int from_in, const char* from, int to_in, const char* to, unsigned how), from_in, from,
        to_in, to, how)
REPLACE(int, unlink, kAny, (const char* path), path)
REPLACE(int, remove, kAny, (const char* path), path)
REPLACE(int, link, call_kind::kLink, (const char* from, const char* to), from, to)
REPLACE(int, mkdir, kAny, (const char* path, mode_t mode), path, mode)
extern "C" DIR* FailingOpenFolder(const char* path) __asm__("opendir");
DIR* FailingOpenFolder(const char* path) {
  return Fails(kAny) ? nullptr
                     : reinterpret_cast<decltype(&opendir)>(dlsym(RTLD_NEXT, "opendir"))(path);
}
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

std::string Content(const std::string& folder) {
  return IsRegularFile(folder + "file") ? ReadAll(folder + "file") : "none";
}

void Do(const plan& meant, auto act) {
  static_cast<plan&>(Faults()) = meant;
  Faults().calls = 0;
  Faults().are_on = true;
  act();
  Faults().are_on = false;
}

write_status Save(const std::string& path, const plan& meant) {
  write_status status{};
  Do(meant, [&] { status = ReplaceFile(path, "new text"); });
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

const char* TryOne(const scene& at, const plan& meant) {
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
  if (const char* fault = FaultAfter(status, meant, at.before, Content(folder))) return fault;
  if (Save(path, {at.refused}) != write_status::kWritten) return "the next save failed";
  if (at.target != target_kind::kNew && std::filesystem::status(file).permissions() != kMode) {
    return "other permissions";
  }
  const auto files = std::distance(std::filesystem::directory_iterator(folder), {});
  return files > (by_link ? 2 : 1) ? "a leftover" : nullptr;
}

void Recover(const std::string& folder) {
  RecoverDesigns(folder, folder);
}
void KeepOldVersion(const std::string& folder) {
  KeepVersion(folder, folder + "a.mrd");
}
void KeepCopy(const std::string& folder) {
  scripted_ui desk;
  const byte_metrics metrics;
  workspace work(desk, metrics);
  work.document.unsaved_changes = true;
  unsaved_copy(folder).KeepNow(work);
}

struct keeper {
  const char* name;
  void (*act)(const std::string& folder);
  call_kind refused;
};
constexpr keeper kKeepers[] = {{"a recovery", Recover, kAny},
                               {"a recovery by copies", Recover, call_kind::kLink},
                               {"a recovery by old renames", Recover, call_kind::kNewName},
                               {"a version", KeepOldVersion, kAny},
                               {"a copy", KeepCopy, kAny}};

const char* TryKeeper(const keeper& tried, const plan& meant) {
  const scratch_folder scratch;
  const std::string& folder = scratch.Path();
  const std::string left = folder + "recovery/1/b.mrd";
  WriteAll(folder + "a.mrd", "1");
  KeepOldVersion(folder);
  WriteAll(folder + "a.mrd", "2");
  for (const char* content : {"3", "4"}) {  // of the same moment, so of one name
    Recover(folder);
    std::filesystem::create_directories(folder + "recovery/1");
    WriteAll(left, content);
    std::filesystem::last_write_time(left, {});
  }
  Do(meant, [&] { tried.act(folder); });
  Recover(folder);
  const std::set<std::string> whole{"", "1", "2", "3", "4", DesignText({})};
  std::set<std::string> found{"", DesignText({})};
  for (const auto& each : std::filesystem::recursive_directory_iterator(folder)) {
    if (each.is_regular_file()) found.insert(ReadAll(each));
  }
  if (std::filesystem::exists(left)) return "the next recovery failed";
  return found == whole ? nullptr : "something is gone or torn";
}

// How many there were. Ends the program at the first fault that one of them finds.
template <class tried>
int TryAll(std::span<const tried> all, const char* (*attempt)(const tried&, const plan&)) {
  constexpr int kErrors[] = {EIO, ENOSPC, EMFILE, EACCES};
  constexpr int kEver = 1000;
  int count = 0;
  const auto check = [&](const tried& at, const plan& meant) {
    ++count;
    const char* fault = attempt(at, meant);
    if (fault == nullptr) return;
    std::fprintf(stderr, "%s, %s from call %d to %d: %s\n", at.name, std::strerror(meant.error),
                 meant.first, meant.last, fault);
    std::exit(1);
  };
  for (const tried& at : all) {
    check(at, {at.refused});
    const int calls = Faults().calls;
    for (const int error : kErrors) {
      for (int call = 1; call <= calls; ++call) {
        for (const int last : {call, kEver}) check(at, {at.refused, call, last, error});
      }
    }
  }
  return count;
}

}  // namespace
}  // namespace mardel

int main() {
  using namespace mardel;
  std::printf("%d saves and %d recoveries, versions and copies with failing calls: OK\n",
              TryAll<scene>(kScenes, TryOne), TryAll<keeper>(kKeepers, TryKeeper));
}
