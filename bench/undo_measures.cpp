// Taking back what moved many blocks.
#include <algorithm>

#include "bench/measures.h"
#include "bench/window.h"
#include "editor/group_move.h"
#include "editor/snapshot.h"

namespace mardel {
namespace {

constexpr std::size_t kBlocks = 1000, kSelected = 100, kNets = 200;

// The first blocks that have as many nets together.
void Select(design& document) {
  std::size_t blocks = 0, nets = 0;
  for (dvblock& block : document.blocks) {
    const auto touching = static_cast<std::size_t>(std::ranges::count_if(
        document.nets, [&](const net& wire) { return Touches(wire, block.id); }));
    const std::size_t left = kSelected - blocks;
    if (nets + touching + (left - 1) * 2 > kNets) continue;
    block.selected = true;
    nets += touching;
    if (++blocks == kSelected) break;
  }
  document.has_selection = true;
}

void RecordAndUndo(benchmark::State& state) {
  design_program generated;
  generated.Generate(kBlocks);
  const offscreen_desktop desk;
  workspace work(*desk, *generated.measures);
  work.document = std::move(generated.document);
  Select(work.document);
  std::size_t records = 0;
  for (auto _ : state) {
    TimeComputing(state, [&] {
      BeginGroupMove(work, {0, 0});
      records = work.undo.records.size();
      UndoLastGroup(work.undo, work.document);
    });
  }
  state.counters["records"] = static_cast<double>(records);
}

void Serialise(benchmark::State& state) {
  design_program generated;
  generated.Generate(kBlocks);
  design& document = generated.document;
  Select(document);
  std::vector<const dvblock*> blocks;
  std::vector<const net*> nets;
  for (const dvblock& block : document.blocks) {
    if (!block.selected) continue;
    blocks.push_back(&block);
    for (const net& wire : document.nets) {
      if (Touches(wire, block.id)) nets.push_back(&wire);
    }
  }
  for (auto _ : state) {
    TimeComputing(state, [&] {
      std::vector<std::string> texts;
      texts.reserve(blocks.size() + nets.size());
      for (const dvblock* block : blocks) texts.push_back(WriteSnapshot(*block));
      for (const net* wire : nets) texts.push_back(WriteSnapshot(*wire));
    });
  }
  state.counters["records"] = static_cast<double>(blocks.size() + nets.size());
}

}  // namespace

void AddUndoMeasures(table& all) {
  all.Add({.name = "record and undo a group move of 100 blocks and their nets",
           .floor_name = "serialising them once",
           .size = {},
           .product = RecordAndUndo,
           .floor = Serialise,
           .target = 10});
}

}  // namespace mardel
