// From wires to a source.
#include <unordered_map>

#include "bench/measures.h"
#include "codegen/net_ends.h"
#include "codegen/netlist.h"
#include "codegen/source_writer.h"
#include "platform/files.h"

namespace mardel {
namespace {

constexpr std::size_t kSizes[] = {100, 1000, 10000, 100000};

void Netlist(benchmark::State& state, std::size_t blocks) {
  design_program generated;
  generated.Generate(blocks);
  program& app = generated.headless.app;
  for (auto _ : state) {
    std::optional<std::vector<net_node>> nodes;
    TimeComputing(
        state, [&] { nodes = BuildNetlist(app.work.document, app.registers, app.outside.desk); });
    if (!nodes) state.SkipWithError("the design was refused");
  }
}

void InsertEnds(benchmark::State& state, std::size_t blocks) {
  design_program generated;
  generated.Generate(blocks);
  for (auto _ : state) {
    std::unordered_map<net_end, std::uint32_t, net_end_hash> ends;
    TimeComputing(state, [&] {
      std::uint32_t number = 0;
      for (const net& wire : generated.Document().nets) {
        ends.try_emplace({wire.id_1, wire.pin_1_name}, number++);
        ends.try_emplace({wire.id_2, wire.pin_2_name}, number++);
      }
    });
  }
}

void CheckAndWrite(benchmark::State& state, const std::string& path, std::size_t blocks) {
  design_program generated(path);
  generated.Generate(blocks);
  program& app = generated.headless.app;
  const auto nodes = BuildNetlist(app.work.document, app.registers, app.outside.desk);
  for (auto _ : state) {
    TimeComputing(state, [&] {
      const bool is_complete =
          CheckDesign(app.work.document, app.outside.desk) &&
          WriteSource(app.work.document, *nodes, app.registers,
                      {.options = app.options, .time = app.outside.time, .desk = app.outside.desk})
              .is_complete;
      if (!is_complete) state.SkipWithError("the design was refused");
    });
  }
}

// The source's pieces, cut where one value ends and the next begins.
std::vector<std::string_view> Pieces(std::string_view text) {
  std::vector<std::string_view> pieces;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = std::min(text.find_first_of("@.(,) \n", start), text.size() - 1) + 1;
    pieces.push_back(text.substr(start, end - start));
    start = end;
  }
  return pieces;
}

void FormatOnly(benchmark::State& state, const std::string& path, std::size_t blocks) {
  design_program generated(path);
  generated.Generate(blocks);
  program& app = generated.headless.app;
  const auto nodes = BuildNetlist(app.work.document, app.registers, app.outside.desk);
  WriteSource(app.work.document, *nodes, app.registers,
              {.options = app.options, .time = app.outside.time, .desk = app.outside.desk});
  const std::string source = ReadFile(path).value_or("");
  const std::vector<std::string_view> pieces = Pieces(source);
  for (auto _ : state) {
    TimeComputing(state, [&] {
      std::string text;
      for (const std::string_view piece : pieces) text += piece;
      benchmark::DoNotOptimize(ReplaceFile(path, text));
    });
  }
}

}  // namespace

void AddNetlistMeasures(table& all, const inputs& in) {
  for (const std::size_t blocks : kSizes) {
    all.Add({.name = "build the netlist",
             .floor_name = "net ends into a hash map",
             .size = std::to_string(blocks),
             .product = [=](benchmark::State& state) { Netlist(state, blocks); },
             .floor = [=](benchmark::State& state) { InsertEnds(state, blocks); },
             .target = 5,
             .growth_target = 12});
  }
  for (const std::size_t blocks : kSizes) {
    const std::string path = in.Folder() + "written.dvc";
    all.Add({.name = "check and write the source",
             .floor_name = "same bytes from an array",
             .size = std::to_string(blocks),
             .product = [=](benchmark::State& state) { CheckAndWrite(state, path, blocks); },
             .floor = [=](benchmark::State& state) { FormatOnly(state, path, blocks); },
             .target = 5,
             .growth_target = 12});
  }
}

}  // namespace mardel
