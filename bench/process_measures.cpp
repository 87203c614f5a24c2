// The verbs of the command line, whole processes.
#include <fstream>

#include "bench/child.h"
#include "bench/measures.h"
#include "codegen/design_file.h"

namespace mardel {
namespace {

constexpr int kRuns = 20;  // of a short process, for each of the 9 medians

void Start(benchmark::State& state, const command& started) {
  for (auto _ : state) {
    ending end;
    TimeWaiting(state, [&] { end = Await(Start(started)); });
    if (end.status != 0) state.SkipWithError("it failed");
    state.counters[kProcessorCounter] = end.processor * 1e3;
  }
}

// In KiB.
double PeakMemory(const command& measured, const std::string& folder) {
  command launcher{{Beside("mardel_bare_program"), folder + "peak"}, measured.home};
  launcher.words.insert(launcher.words.end(), measured.words.begin(), measured.words.end());
  double size = 0;
  if (Await(Start(launcher)).status == 0) std::ifstream(launcher.words[1]) >> size;
  return size;
}

std::string Generated(const inputs& in, std::size_t blocks) {
  std::string path = in.Folder() + std::to_string(blocks) + ".mrd";
  design_program generated;
  generated.Generate(blocks);
  (void)SaveDesign(generated.document, path);
  return path;
}

void AddShort(table& all, const inputs& in) {
  const command bare{{Beside("mardel_bare_program")}, in.SamplesHome()};
  const auto add = [&](const char* name, const char* size, const command& started, double target) {
    all.Add({.name = name,
             .floor_name = "bare program",
             .size = size,
             .product = [=](benchmark::State& state) { Start(state, started); },
             .floor = [=](benchmark::State& state) { Start(state, bare); },
             .target = target,
             .iterations = kRuns});
  };
  const std::string& program = in.Program();
  add("a program with the toolkit's core library", "", {{Beside("mardel_bare_core")}, bare.home},
      0);
  add("`mardel --version`", "", {{program, "--version"}, bare.home}, 2.5);
  add("`mardel --help`", "", {{program, "--help"}, bare.home}, 2.5);
  add("`mardel --check`, a sample", "", {{program, "--check", in.SampleDesign()}, bare.home}, 3.5);
  const std::string source = in.Folder() + "small.dvc";
  add("`mardel --generate`, one library", "100",
      {{program, "--generate", source, Generated(in, 100)}, in.LibraryHome()}, 4.5);
}

void AddLong(table& all, const inputs& in) {
  const std::string path = Generated(in, 10000);
  const std::string& home = in.LibrariesHome();
  const command generate{{in.Program(), "--generate", in.Folder() + "large.dvc", path}, home};
  const command version{{in.Program(), "--version"}, home};
  all.Add({.name = "`mardel --generate`, 30 libraries",
           .floor_name = "expat alone",
           .size = "10000",
           .product =
               [=, folder = in.Folder()](benchmark::State& state) {
                 Start(state, generate);
                 state.counters[kPeakCounter] =
                     PeakMemory(generate, folder) - PeakMemory(version, folder);
               },
           .floor =
               [=](benchmark::State& state) {
                 ParseFile(state, path);
                 state.counters[kPeakCounter] = FileKibibytes(path);
               },
           .target = 1.6,
           .memory_target = 4,
           .iterations = 1});
}

}  // namespace

void AddProcessMeasures(table& all, const inputs& in) {
  AddShort(all, in);
  AddLong(all, in);
}

}  // namespace mardel
