// The mouse on the real window: drags, hovering, and long sessions.
#include <malloc.h>

#include <fstream>

#include "bench/measures.h"
#include "bench/window.h"
#include "editor/edit_commands.h"

namespace mardel {
namespace {

constexpr int kMoves = 56;  // times the 9 runs: some 500

point Middle(const dvblock& block) {
  return {block.x + block.width / 2, block.y + block.height / 2};
}

// To and fro over the canvas, pixel by pixel.
point Step(point start, int step) {
  const int away = step % 100 < 50 ? step % 50 : 50 - step % 50;
  return {start.x + away, start.y + away / 2};
}

void Select(design& document, std::size_t blocks) {
  auto block = document.blocks.rbegin();
  for (std::size_t i = 0; i < blocks; ++i, ++block) block->selected = true;
  document.has_selection = blocks > 0;
}

enum class gesture_kind { kBlockDrag, kGroupDrag, kHover };

struct gesture_row {
  gesture_kind what;
  const char* name;
  std::size_t selected;
};

constexpr gesture_row kGestures[] = {
    {gesture_kind::kBlockDrag, "a move of a block drag", 0},
    {gesture_kind::kGroupDrag, "a move of a drag of 50 blocks", 50},
    {gesture_kind::kHover, "a move of a hover", 0},
};

void Drag(benchmark::State& state, const gesture_row& row, std::size_t blocks) {
  bench_window window(blocks);
  for (auto _ : state) {
    design& document = window.App().work.document;
    Select(document, row.selected);
    const point start = Middle(document.blocks.Last());
    const auto move = [&] {
      for (int step = 1; step <= kMoves; ++step) {
        window.Move(Step(start, step));
        window.Settle();
      }
    };
    window.Run([&] {
      if (row.what != gesture_kind::kHover) window.Press(start);
      TimeComputing(state, move, kMoves);
      if (row.what != gesture_kind::kHover) window.Release(start);
    });
    Undo(window.App().work);
    ClearSelection(document);
  }
}

void RedrawOnly(benchmark::State& state, const gesture_row& row, std::size_t blocks) {
  bench_window window(blocks);
  Select(window.App().work.document, row.selected);
  for (auto _ : state) {
    const auto redraw = [&] {
      for (int step = 1; step <= kMoves; ++step) window.Redraw();
    };
    window.Run([&] { TimeComputing(state, redraw, kMoves); });
  }
}

double ResidentMebibytes() {
  malloc_trim(0);
  double pages = 0;
  std::ifstream("/proc/self/statm") >> pages >> pages;
  return pages * 4096 / 1048576;
}

// One of four: drags a block, draws a wire that ends nowhere, selects by a band, moves the
// selection.
void Gesture(bench_window& window, int number) {
  workspace& work = window.App().work;
  auto chosen = std::next(work.document.blocks.begin(),
                          number * 7 % static_cast<int>(work.document.blocks.size()));
  const point middle = Middle(*chosen);
  const point corner = {chosen->x - 3, chosen->y - 3};
  const pin& first = chosen->pins.front();
  const point starts[] = {middle, {PinCentre(*chosen, first)}, corner, middle};
  const point start = starts[number % 4];
  window.Press(start);
  for (std::int64_t step = 1; step <= 3; ++step) {
    window.Move({start.x + 40 * step, start.y + 30 * step});
  }
  window.Move(start);
  window.Release(start);
  Undo(work);
  window.Settle();
}

// The growth is the point, not the time.
void LongSession(benchmark::State& state) {
  constexpr int kEarly = 1000, kLate = 10000;
  for (auto _ : state) {
    bench_window window(100, {800, 600});
    const auto play = [&window](int from, int to) {
      for (int number = from; number < to; ++number) Gesture(window, number);
      window.App().work.undo.records = {};
    };
    window.Run([&] {
      play(0, kEarly);
      const double early = ResidentMebibytes();
      TimeComputing(state, [&] { play(kEarly, kLate); }, kLate - kEarly);
      state.counters[kGrowthCounter] = ResidentMebibytes() - early;
    });
  }
}

}  // namespace

void AddEventMeasures(table& all) {
  for (const gesture_row& row : kGestures) {
    for (const std::size_t blocks : {100U, 1000U}) {
      all.Add({.name = row.name,
               .floor_name = "its redraw",
               .size = std::to_string(blocks),
               .product = [&row, blocks](benchmark::State& state) { Drag(state, row, blocks); },
               .floor = [&row, blocks](benchmark::State& state) { RedrawOnly(state, row, blocks); },
               .target = 1.3,
               .iterations = 1});
    }
  }
}

void AddMemoryMeasure(table& all) {
  all.Add({.name = "a gesture of 10,000",
           .floor_name = {},
           .size = "100",
           .product = LongSession,
           .floor = {},
           .iterations = 1});
}

}  // namespace mardel
