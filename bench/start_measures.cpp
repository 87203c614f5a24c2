// From the start of a process to what the user sees of it.
#include <cstdlib>

#include "app/main_menu.h"
#include "bench/child.h"
#include "bench/measures.h"

namespace mardel {
namespace {

void Count(const std::vector<menu_item>& items, int& commands) {
  for (const menu_item& each : items) {
    if (each.kind == menu_item_kind::kSubmenu) {
      Count(each.items, commands);
    } else {
      ++commands;
    }
  }
}

// The submenus and the commands of the program that finds these libraries.
std::vector<std::string> MenuCounts(const std::string& home) {
  setenv("HOME", home.c_str(), 1);
  const auto measures = FixedTextMetrics();
  const headless_program run(*measures);
  int submenus = 0, commands = 0;
  for (const menu& each : MenuBar(HostKind(), {}, run.libraries)) {
    for (const menu_item& top : each.items) submenus += top.kind == menu_item_kind::kSubmenu;
    Count(each.items, commands);
  }
  return {std::to_string(submenus), std::to_string(commands)};
}

void Show(benchmark::State& state, const command& started) {
  for (auto _ : state) {
    const mapping seen = StartWindow(started);
    if (seen.painted == 0) state.SkipWithError("no window came");
    state.SetIterationTime(seen.mapped);
    state.counters[kPaintedCounter] = seen.painted * 1e3;
    state.counters[kProcessorCounter] = seen.processor * 1e3;
    state.counters[kMemoryCounter] = seen.memory;
  }
}

void Add(table& all, const char* name, const command& product, double target) {
  command floor{{Beside("mardel_bare_window")}, product.home};
  for (const std::string& count : MenuCounts(product.home)) floor.words.push_back(count);
  all.Add({.name = name,
           .floor_name = "bare window",
           .size = {},
           .product = [=](benchmark::State& state) { Show(state, product); },
           .floor = [=](benchmark::State& state) { Show(state, floor); },
           .target = target,
           .memory_target = target,
           .iterations = 1});
}

}  // namespace

void AddStartMeasures(table& all, const inputs& in) {
  Add(all, "start to mapped window, samples", {{in.Program(), in.SampleDesign()}, in.SamplesHome()},
      1.3);
  Add(all, "start to mapped window, 30 files of 50 blocks", {{in.Program()}, in.LibrariesHome()},
      2);
}

}  // namespace mardel
