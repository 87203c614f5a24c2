// What it costs to keep unsaved work: the window's wait for a copy, and a hand that is never at
// rest.
#include "bench/measures.h"
#include "bench/window.h"

namespace mardel {
namespace {

void Keep(benchmark::State& state, const std::string& folder, std::size_t blocks) {
  bench_window window(blocks);
  workspace& work = window.App().work;
  work.document.unsaved_changes = true;
  unsaved_copy copy(folder);
  for (auto _ : state) {
    ++work.undo.changes;
    TimeWaiting(state, [&] { copy.Keep(work); });
    copy.KeepNow(work);  // waits for the disk
  }
  copy.Remove();
}

void TextOnly(benchmark::State& state, std::size_t blocks) {
  design_program generated;
  generated.Generate(blocks);
  for (auto _ : state) {
    TimeWaiting(state, [&] { benchmark::DoNotOptimize(DesignText(generated.document)); });
  }
}

// Drags for some seconds, with all the copies that are due meanwhile.
void Drags(benchmark::State& state, const std::string& folder, std::size_t blocks) {
  constexpr int kDrags = 300;
  bench_window window(blocks, {800, 600}, folder);
  for (auto _ : state) {
    const auto drag = [&](int number) {
      const std::int64_t away = number % 2 == 0 ? 30 : -30;
      const dvblock& block = window.App().work.document.blocks.Last();
      const point at{block.x + block.width / 2, block.y + block.height / 2};
      window.Press(at);
      window.Move({at.x + away, at.y});
      window.Release({at.x + away, at.y});
      window.Settle();
    };
    window.Run([&] {
      TimeComputing(
          state,
          [&] {
            for (int number = 0; number < kDrags; ++number) drag(number);
          },
          kDrags);
    });
    window.App().copy.Remove();
  }
}

}  // namespace

void AddKeepingMeasures(table& all, const inputs& in) {
  const std::string folder = in.Folder() + "state/";
  for (const std::size_t blocks : {100U, 1000U, 10000U}) {
    all.Add({.name = "keep unsaved work",
             .floor_name = "its text",
             .size = std::to_string(blocks),
             .product = [=](benchmark::State& state) { Keep(state, folder, blocks); },
             .floor = [=](benchmark::State& state) { TextOnly(state, blocks); },
             .target = 1.5});
  }
  for (const std::size_t blocks : {100U, 1000U}) {
    all.Add({.name = "a drag, work being kept",
             .floor_name = "a drag",
             .size = std::to_string(blocks),
             .product = [=](benchmark::State& state) { Drags(state, folder, blocks); },
             .floor = [=](benchmark::State& state) { Drags(state, {}, blocks); },
             .target = 1.1,
             .iterations = 1});
  }
}

}  // namespace mardel
