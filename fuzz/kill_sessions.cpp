// kill_sessions COUNT [SEED]: kills COUNT programs at work, each at a random moment of a wild
// hand's gestures. The next start must find the design as it last was, or as it was at most a
// second before; saved files and kept versions must be whole; nothing else may be left. Prints
// figures, or what was found instead.
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <optional>
#include <set>
#include <sstream>
#include <stdexcept>

#include "app/event_handling.h"
#include "app/file_commands.h"
#include "app/history.h"
#include "app/recovery.h"
#include "app/startup.h"
#include "codegen/design_file.h"
#include "fuzz/kit.h"
#include "fuzz/wild_hand.h"
#include "fuzz/wild_tools.h"
#include "platform/state_folder.h"
#include "tests/support/files.h"
#include "tests/support/fixed_metrics.h"

namespace mardel {
namespace {

using moment = std::chrono::steady_clock::time_point;
using milliseconds = std::chrono::milliseconds;

// Shorter than the desktop's, so that many kills hit a copy that is being written.
constexpr milliseconds kDelay{10};
constexpr milliseconds kMostBehind{1000};
constexpr std::size_t kLongestLife = 200'000;  // microseconds
constexpr std::string_view kTemporary = ".mrd.mardel-0.tmp";
constexpr std::size_t kMostStates = std::size_t{1} << 17U;

// What a design was from some moment on.
struct state {
  std::size_t text = 0;  // its hash
  bool is_unsaved = false;
  moment since;
};

// Written by the program that will be killed.
struct diary {
  std::atomic<std::size_t> count = 0;
  state states[kMostStates];

  const state& Last() const { return states[count - 1]; }
};

struct figures {
  int recovered = 0, just_begun = 0, nothing_lost = 0, ended = 0, temporaries = 0;
  milliseconds behind{0};
};

// Of the lines in any order: to write a source, the program sorts the blocks.
std::size_t Hash(const std::string& text) {
  std::istringstream lines(text);
  std::size_t sum = 0;
  for (std::string line; std::getline(lines, line);) sum += std::hash<std::string>()(line);
  return sum;
}

void Note(diary& kept, const design& document) {
  const state now{Hash(DesignText(document)), document.unsaved_changes,
                  std::chrono::steady_clock::now()};
  const std::size_t count = kept.count;
  if (count > 0 && kept.Last().text == now.text && kept.Last().is_unsaved == now.is_unsaved) return;
  if (count == kMostStates) _exit(1);
  kept.states[count] = now;
  kept.count = count + 1;
}

void Expect(bool holds, const std::string& promise) {
  if (!holds) throw std::runtime_error(promise);
}

// With what the desktop does between events.
[[noreturn]] void Work(const std::string& folder, unsigned seed, diary& kept) {
  dice random(seed);
  wild_ui desk(random);
  wild_tools tools(random);
  const byte_metrics metrics;
  desk.paths = {"", folder + "a.mrd", folder + "b.mrd", folder + "none/x"};
  program app({desk, metrics, tools, Now, folder + "state/"});
  ReadSettings(app, {.kind = host_kind::kLinux, .folders = {}, .current_folder = folder});
  (void)FillLibraries(app);
  OpenFile(app, folder + "a.mrd");
  wild_hand hand(app, desk, random);
  std::optional<moment> due;
  do {
    Note(kept, app.work.document);
    const moment now = std::chrono::steady_clock::now();
    if (due && now >= *due) {
      app.copy.Keep(app.work);
      due.reset();
    }
    if (!due && app.copy.IsDue(app.work)) due = now + kDelay;
  } while (HandleEvent(app, hand.Next()));
  app.copy.GiveUp();
  _exit(0);
}

class run {
 public:
  run(diary& kept, unsigned seed) : kept_(kept), random_(seed) {
    WriteAll(In("Mardel.con"), "<c><libraries_path>" + folder_.Path() + "</libraries_path></c>");
    WriteAll(In("kit.dvl"), kKit);
    for (const char* name : {"a.mrd", "b.mrd"}) WriteAll(In(name), DesignText({}));
    known_.insert(Hash(DesignText({})));
  }

  void KillOne();
  figures count;

 private:
  std::string In(const std::string& name) const { return folder_.Path() + name; }
  bool EndsEarly(pid_t program);
  void CheckRecovered(moment killed);
  milliseconds Behind(std::size_t text, moment killed) const;
  void CheckWhole(const std::string& path);
  void CheckFiles();

  diary& kept_;
  dice random_;
  scratch_folder folder_;
  std::set<std::size_t> known_;  // of all programs
};

// Whether it quit before it could be killed.
bool run::EndsEarly(pid_t program) {
  usleep(static_cast<useconds_t>(random_.Below(kLongestLife)));
  kill(program, SIGKILL);
  int status = 0;
  while (waitpid(program, &status, 0) < 0 && errno == EINTR) {
  }
  const bool is_killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
  Expect(is_killed || (WIFEXITED(status) && WEXITSTATUS(status) == 0), "a program works on");
  return !is_killed;
}

void run::KillOne() {
  bool ended = true;
  while (ended) {
    kept_.count = 0;
    const auto seed = static_cast<unsigned>(random_.Below(1U << 30U));
    const pid_t program = fork();
    if (program == 0) Work(folder_.Path(), seed, kept_);
    ended = EndsEarly(program);
    const moment killed = std::chrono::steady_clock::now();
    for (std::size_t i = 0; i < kept_.count; ++i) known_.insert(kept_.states[i].text);
    if (ended) ++count.ended;
    if (kept_.count == 0) ended = true;  // it had not begun
    if (!ended) CheckRecovered(killed);
  }
  CheckFiles();
}

// How long ago the design stopped to be this one.
milliseconds run::Behind(std::size_t text, moment killed) const {
  for (std::size_t i = kept_.count; i > 0; --i) {
    if (kept_.states[i - 1].text != text) continue;
    const moment until = i == kept_.count ? killed : kept_.states[i].since;
    return std::chrono::duration_cast<milliseconds>(killed - until);
  }
  return milliseconds::max();
}

void run::CheckRecovered(moment killed) {
  const recovered_designs found = RecoverDesigns(In("state/"), folder_.Path());
  Expect(found.stayed.empty() && found.in_use.empty(), "what a dead program left can be moved");
  milliseconds behind = milliseconds::max();
  for (const std::string& path : found.moved) {
    CheckWhole(path);
    behind = std::min(behind, Behind(Hash(ReadAll(path)), killed));
    std::filesystem::remove(path);
  }
  if (!kept_.Last().is_unsaved) return static_cast<void>(++count.nothing_lost);
  // Nothing was kept yet of changes that have just begun.
  std::size_t first = kept_.count;
  while (first > 0 && kept_.states[first - 1].is_unsaved) --first;
  const moment begun = kept_.states[first].since;
  behind = std::min(behind, std::chrono::duration_cast<milliseconds>(killed - begun));
  Expect(behind <= kMostBehind, "at most a second is lost");
  count.behind = std::max(count.behind, behind);
  ++(found.moved.empty() ? count.just_begun : count.recovered);
}

void run::CheckWhole(const std::string& path) {
  Expect(known_.contains(Hash(ReadAll(path))), path + " holds a design as it was");
}

void run::CheckFiles() {
  for (const char* name : {"a.mrd", "b.mrd"}) {
    const std::string content = ReadAll(In(name));
    if (content.starts_with("<M")) CheckWhole(In(name));  // else a source was written there
    for (const design_version& each : Versions(In("state/"), In(name))) {
      if (ReadAll(each.path).starts_with("<M")) CheckWhole(each.path);
    }
  }
  Expect(ListFolders(In("state/recovery/")).empty(), "nothing is left to recover");
  if (!ListFiles(folder_.Path(), kTemporary).empty()) ++count.temporaries;
  for (const char* name : {"a.mrd", "b.mrd"}) {
    Expect(SaveDesign({}, In(name)) == write_status::kWritten, "the next save works");
  }
  Expect(ListFiles(folder_.Path(), kTemporary).empty(), "the next save removes what one left");
}

int Run(int kills, unsigned seed) {
  void* memory =
      mmap(nullptr, sizeof(diary), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  if (memory == MAP_FAILED) return 2;
  run all(*new (memory) diary, seed);
  for (int i = 0; i < kills; ++i) {
    try {
      all.KillOne();
    } catch (const std::exception& broken) {
      std::fprintf(stderr, "kill %d: not kept: %s\n", i, broken.what());
      return 1;
    }
  }
  std::printf(
      "%d kills: %d designs recovered, %d changes had just begun, at most %d ms behind; "
      "%d times nothing was unsaved; "
      "%d temporaries left and removed by the next save; %d programs quit before: OK\n",
      kills, all.count.recovered, all.count.just_begun, static_cast<int>(all.count.behind.count()),
      all.count.nothing_lost, all.count.temporaries, all.count.ended);
  return 0;
}

}  // namespace
}  // namespace mardel

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fputs("usage: kill_sessions COUNT [SEED]\n", stderr);
    return 2;
  }
  return mardel::Run(std::atoi(argv[1]), argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 0);
}
