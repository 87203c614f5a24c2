// What could grow faster than its input: each at two sizes, the second ten times the first.
#include <filesystem>
#include <fstream>

#include "bench/design_generator.h"
#include "bench/measures.h"
#include "bench/window.h"
#include "codegen/findings/design_findings.h"
#include "editor/device_dialog.h"
#include "editor/group_move.h"
#include "library/library_loader.h"

namespace mardel {
namespace {

void OpenValues(benchmark::State& state, const std::string& /*folder*/, std::size_t rows) {
  for (auto _ : state) {
    bench_window window(1);
    dvblock& block = window.App().work.document.blocks.Last();
    for (std::size_t row = 0; row < rows; ++row) {
      param& added = block.params.emplace_back();
      added.param_name = "factor" + std::to_string(row);
      added.param_value = "0.5";
    }
    window.Run([&] {
      TimeComputing(state, [&] {
        OpenDeviceDialog(window.App().work, block);
        window.Settle();
      });
    });
  }
}

// A new note each time, so that nothing of it is known before.
void ShowNote(benchmark::State& state, const std::string& word, std::size_t words) {
  bench_window window(1);
  workspace& work = window.App().work;
  std::string text;
  for (std::size_t number = 0; number < words; ++number) text += word;
  for (auto _ : state) {
    work.document.texts.Clear();
    textblock& note = work.document.texts.Append({.text_str = text += word});
    TimeComputing(state, [&] {
      MeasureNote(note, work.metrics);
      window.Redraw();
    });
  }
}

void ShowLongNote(benchmark::State& state, const std::string& /*folder*/, std::size_t words) {
  ShowNote(state, "signal of stage\n", words);
}

void ShowLongWord(benchmark::State& state, const std::string& /*folder*/, std::size_t letters) {
  ShowNote(state, "w", letters);
}

void ReadLibrary(benchmark::State& state, const std::string& folder, std::size_t blocks) {
  const auto measures = FixedTextMetrics();
  const std::string own = folder + "corner" + std::to_string(blocks) + "/";
  std::filesystem::create_directories(own);
  std::ofstream(own + "large.dvl") << LibraryText(0, static_cast<int>(blocks));
  for (auto _ : state) {
    TimeComputing(state, [&] {
      benchmark::DoNotOptimize(LoadLibraries(own, expert_mode::kOff, 1, *measures));
    });
  }
}

// Warnings look blocks, nets and pins up by their ids.
void FindWarnings(benchmark::State& state, const std::string& /*folder*/, std::size_t blocks) {
  design_program generated;
  generated.Generate(blocks);
  const std::string bytes = DesignText(generated.document);
  const load_context context = LoadContext(generated.run);
  for (auto _ : state) {
    raw_design raw;
    (void)ReadRawDesign(raw, bytes, context.line_separator);
    TimeComputing(state, [&] {
      benchmark::DoNotOptimize(FindAll(std::move(raw), context, generated.run.registers));
    });
  }
}

void MoveAllAndUndo(benchmark::State& state, const std::string& /*folder*/, std::size_t blocks) {
  design_program generated;
  generated.Generate(blocks);
  const offscreen_desktop desk;
  workspace work(*desk, *generated.measures);
  work.document = std::move(generated.document);
  for (auto _ : state) {
    for (dvblock& each : work.document.blocks) each.selected = true;
    work.document.has_selection = true;
    TimeComputing(state, [&] {
      BeginGroupMove(work, {0, 0});
      UndoLastGroup(work.undo, work.document);
    });
  }
}

struct corner {
  const char* name;
  void (*run)(benchmark::State& state, const std::string& folder, std::size_t size);
  std::size_t small;
};

constexpr corner kCorners[] = {
    {"open a dialog of so many values", OpenValues, 1000},
    {"measure and draw a note of so many lines", ShowLongNote, 1000},
    {"measure and draw a word of so many letters", ShowLongWord, 1000},
    {"read a library of so many blocks", ReadLibrary, 1000},
    {"find all that is to be said of a design", FindWarnings, 1000},
    {"record and undo a move of all blocks", MoveAllAndUndo, 100},
};

}  // namespace

void AddCornerMeasures(table& all, const inputs& in) {
  for (const corner& each : kCorners) {
    for (const std::size_t size : {each.small, 10 * each.small}) {
      all.Add({.name = each.name,
               .floor_name = {},
               .size = std::to_string(size),
               .product = [&each, size, folder = in.Folder()](
                              benchmark::State& state) { each.run(state, folder, size); },
               .floor = {},
               .growth_target = 12,
               .iterations = 1});
    }
  }
}

}  // namespace mardel
