// kill_saves COUNT [SEED]: kills COUNT processes that do nothing but save a design, each at a
// random moment. The file must be the whole one of the last save or of the one in progress, and the
// next save must leave nothing but the file. Prints figures, or what was found instead.
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <new>
#include <random>

#include "codegen/design_file.h"
#include "tests/support/files.h"

namespace mardel {
namespace {

// Shared with the process that saves.
struct progress {
  std::atomic<int> begun = 0, done = 0;  // numbers of saves
};

struct figures {
  int old_files = 0, new_files = 0;
  int temporaries = 0;  // left beside the file
  int saves = 0;
};

// Each save's design differs from the one before, in its size too.
void Number(design& document, int save) {
  document.texts.Clear();
  document.texts.Append(
      {.id = 0, .text_str = std::string(static_cast<std::size_t>(save % 5) * 9000, 'x')});
  document.texts.Append({.id = 1, .text_str = "save " + std::to_string(save)});
}

std::string TextOf(design& document, int save) {
  Number(document, save);
  return DesignText(document);
}

[[noreturn]] void SaveForEver(design& document, const std::string& path, progress& shared) {
  while (true) {
    const int save = shared.done + 1;
    Number(document, save);
    shared.begun = save;
    if (SaveDesign(document, path) != write_status::kWritten) _exit(1);
    shared.done = save;
  }
}

long CountFiles(const std::string& folder) {
  return std::distance(std::filesystem::directory_iterator(folder), {});
}

// Null when all is well.
const char* KillOne(const scratch_folder& folder, design& document, progress& shared,
                    useconds_t life, figures& count) {
  const std::string path = folder.Path() + "design.mrd";
  const int first = shared.done;
  const pid_t child = fork();
  if (child == 0) SaveForEver(document, path, shared);
  usleep(life);
  kill(child, SIGKILL);
  int status = 0;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  if (!WIFSIGNALED(status)) return "a save failed";

  const std::string found = ReadAll(path);
  const bool is_old = found == TextOf(document, shared.done);
  if (!is_old && found != TextOf(document, shared.begun)) return "the file is neither old nor new";
  ++(is_old ? count.old_files : count.new_files);
  if (CountFiles(folder.Path()) > 1) ++count.temporaries;
  count.saves += shared.done - first;

  shared.done = shared.begun + 1;
  Number(document, shared.done);
  if (SaveDesign(document, path) != write_status::kWritten) return "the next save failed";
  return CountFiles(folder.Path()) == 1 ? nullptr : "the next save left a temporary";
}

int Run(int count, unsigned seed) {
  void* memory =
      mmap(nullptr, sizeof(progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  if (memory == MAP_FAILED) return 2;
  progress& shared = *new (memory) progress;
  const scratch_folder folder;
  design document;
  for (int i = 0; i < 200; ++i) {
    document.blocks.Append(
        {.id = i, .lib = "Kit", .sub = "Amp", .pins = {{}, {}, {}}, .params = {{}}});
  }
  WriteAll(folder.Path() + "design.mrd", TextOf(document, 0));
  std::mt19937 random(seed);
  figures all;
  for (int i = 0; i < count; ++i) {
    const char* fault =
        KillOne(folder, document, shared, static_cast<useconds_t>(random() % 30'000), all);
    if (fault == nullptr) continue;
    std::fprintf(stderr, "kill %d: %s\n", i, fault);
    return 1;
  }
  std::printf(
      "%d kills among %d saves: %d times the old file, %d times the new one, %d temporaries left "
      "and removed by the next save: OK\n",
      count, all.saves, all.old_files, all.new_files, all.temporaries);
  return 0;
}

}  // namespace
}  // namespace mardel

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fputs("usage: kill_saves COUNT [SEED]\n", stderr);
    return 2;
  }
  return mardel::Run(std::atoi(argv[1]), argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 0);
}
