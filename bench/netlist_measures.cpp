// From wires to a source.
#include <unordered_map>

#include "bench/measures.h"
#include "codegen/design_check.h"
#include "codegen/net_ends.h"
#include "codegen/netlist.h"
#include "codegen/source_writer.h"
#include "platform/files.h"

namespace mardel {
namespace {

constexpr std::size_t kSizes[] = {100, 1000, 10000};

void Netlist(benchmark::State& state, std::size_t blocks) {
  design_program generated;
  generated.Generate(blocks);
  for (auto _ : state) {
    std::variant<std::vector<net_node>, report> built;
    TimeComputing(state,
                  [&] { built = BuildNetlist(generated.document, generated.run.registers); });
    if (built.index() != 0) state.SkipWithError("the design was refused");
  }
}

void InsertEnds(benchmark::State& state, std::size_t blocks) {
  design_program generated;
  generated.Generate(blocks);
  for (auto _ : state) {
    std::unordered_map<net_end, std::uint32_t, net_end_hash> ends;
    TimeComputing(state, [&] {
      std::uint32_t number = 0;
      for (const net& wire : generated.document.nets) {
        ends.try_emplace({wire.id_1, wire.pin_1_name}, number++);
        ends.try_emplace({wire.id_2, wire.pin_2_name}, number++);
      }
    });
  }
}

// The nodes of `of` into the source at `path`.
bool Write(design_program& of, const std::vector<net_node>& nodes, const std::string& path) {
  const source_result result =
      WriteSource(of.document, nodes, of.run.registers, {.path = path, .moment = Now()});
  return result.status == write_status::kWritten && !result.problem;
}

void CheckAndWrite(benchmark::State& state, const std::string& path, std::size_t blocks) {
  design_program generated;
  generated.Generate(blocks);
  const auto nodes = BuildNetlist(generated.document, generated.run.registers);
  for (auto _ : state) {
    TimeComputing(state, [&] {
      const bool is_complete = CheckDesign(generated.document, problem_search::kFirst).empty() &&
                               Write(generated, std::get<0>(nodes), path);
      if (!is_complete) state.SkipWithError("the design was refused");
    });
  }
}

// A call of the source, with its values ready to be written.
struct ready_call {
  std::string lib, sub;
  std::vector<std::string> arguments;
};

struct ready_source {
  std::string head;  // all lines before the calls
  std::vector<ready_call> calls;
};

ready_call ReadCall(std::string_view line) {
  const auto take = [&line](std::string_view ends) {
    const std::size_t size = line.find_first_of(ends);
    std::string taken(line.substr(0, size));
    line.remove_prefix(size + 1);
    return taken;
  };
  take("@");
  ready_call call{take("."), take("("), {}};
  while (!line.empty()) call.arguments.push_back(take(line.find(',') < line.npos ? "," : ")"));
  return call;
}

ready_source ReadSource(std::string_view text) {
  ready_source source;
  while (!text.empty()) {
    const std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(line.size() + 1);
    if (line.starts_with('@')) {
      source.calls.push_back(ReadCall(line));
    } else {
      source.head.append(line) += '\n';
    }
  }
  return source;
}

std::string Format(const ready_source& source) {
  std::string text = source.head;
  for (const ready_call& call : source.calls) {
    ((text += '@') += call.lib) += '.';
    (text += call.sub) += '(';
    for (const std::string& argument : call.arguments) (text += argument) += ',';
    if (!call.arguments.empty()) text.pop_back();
    text += ")\n";
  }
  return text;
}

void FormatOnly(benchmark::State& state, const std::string& path, std::size_t blocks) {
  design_program generated;
  generated.Generate(blocks);
  const auto nodes = BuildNetlist(generated.document, generated.run.registers);
  Write(generated, std::get<0>(nodes), path);
  const std::string written = ReadFile(path).value_or("");
  const ready_source source = ReadSource(written);
  if (Format(source) != written) state.SkipWithError("the floor writes another source");
  for (auto _ : state) {
    TimeComputing(state, [&] { benchmark::DoNotOptimize(ReplaceFile(path, Format(source))); });
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
             .floor_name = "same bytes from ready values",
             .size = std::to_string(blocks),
             .product = [=](benchmark::State& state) { CheckAndWrite(state, path, blocks); },
             .floor = [=](benchmark::State& state) { FormatOnly(state, path, blocks); },
             .target = 8,
             .growth_target = 15});
  }
}

}  // namespace mardel
