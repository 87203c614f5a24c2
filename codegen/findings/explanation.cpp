#include "codegen/findings/explanation.h"

#include <algorithm>
#include <unordered_map>

#include "codegen/findings/warnings.h"
#include "platform/escaping.h"
#include "platform/json.h"

namespace mardel {
namespace {

// The lines of all calls, and for each block that has none why.
std::unordered_map<const dvblock*, std::string> AppendAllCalls(
    source_lines& to, std::span<const dvblock* const> blocks, const pin_registers& registers) {
  std::unordered_map<const dvblock*, std::string> problems;
  while (!blocks.empty()) {
    const std::size_t before = to.lines.size();
    const std::optional<report> unset = AppendCalls(to, blocks, registers);
    if (!unset) break;
    const std::size_t written = to.lines.size() - before;
    problems[blocks[written]] = unset->text.text;
    blocks = blocks.subspan(written + 1);
  }
  return problems;
}

std::string_view WhyWord(register_reason why) {
  if (why == register_reason::kBlock) return "block";
  return why == register_reason::kMemory ? "memory" : "none";
}

std::string NodeLines(const explained_node& of) {
  std::string lines = "node " + std::to_string(of.node->id) + ": ";
  lines += HasRegister(of.why) ? of.node->mr + ", " : "no register, ";
  lines += ReasonWords(of.why);
  for (const dvblock* block : of.register_blocks) {
    if (of.why == register_reason::kBlock && block->sub == of.node->mr) {
      lines += ": " + BlockName(*block);
      break;
    }
  }
  lines = EscapeControls(lines) + '\n';
  for (const node_pin& each : of.pins) lines += "    " + EscapeControls(PinWords(each)) + '\n';
  return lines;
}

std::string BlockLines(const explained_block& of) {
  const std::string name = BlockName(*of.block) + ": ";
  std::string lines;
  for (const std::string& line : of.lines) {
    lines += EscapeControls(name + line) + '\n';
  }
  if (lines.empty()) {
    lines = EscapeControls(name + "no line" + (of.problem.empty() ? "" : ", " + of.problem)) + '\n';
  }
  return lines;
}

void AddNode(json_text& json, const explained_node& of) {
  json.OpenObject().Name("node").Value(of.node->id);
  json.Name("register").Value(of.node->mr).Name("why").Value(WhyWord(of.why));
  json.Name("reason").Value(ReasonWords(of.why)).Name("pins").OpenArray();
  for (const node_pin& each : of.pins) {
    json.OpenObject().Name("block").Value(each.block_id);
    json.Name("pin").Value(each.pin_name).CloseObject();
  }
  json.CloseArray().CloseObject();
}

void AddBlock(json_text& json, const explained_block& of) {
  json.OpenObject().Name("block").Value(of.block->id).Name("lib").Value(of.block->lib);
  json.Name("sub").Value(of.block->sub).Name("lines").OpenArray();
  for (const std::string& line : of.lines) json.Value(line);
  json.CloseArray();
  if (!of.problem.empty()) json.Name("problem").Value(of.problem);
  json.CloseObject();
}

}  // namespace

explanation ExplainDesign(const design& document, const std::vector<net_node>& nodes,
                          const register_pool& pool, expert_mode mode) {
  explanation all;
  all.nodes = ExplainNodes(document, nodes);
  const sorted_blocks sorted = SortByX(document);
  register_pool declared = pool;
  source_lines written;
  AppendDeclarations(written, sorted.registers, declared, mode);
  const auto problems = AppendAllCalls(written, sorted.others, pin_registers(nodes));
  all.source = std::move(written.text);

  std::unordered_map<const dvblock*, std::size_t> places;
  for (const auto* list : {&sorted.registers, &sorted.others}) {
    for (const dvblock* block : *list) {
      places[block] = all.blocks.size();
      const auto problem = problems.find(block);
      all.blocks.push_back({block, {}, problem == problems.end() ? "" : problem->second});
    }
  }
  for (const source_line& each : written.lines) {
    all.blocks[places.at(each.block)].lines.push_back(all.source.substr(each.start, each.size));
  }
  for (const memory_register& each : pool.memory) {
    if (each.is_free) {
      ++all.free;
    } else {
      all.used.push_back(each.name);
    }
  }
  return all;
}

std::string ExplanationText(const explanation& of) {
  std::string text, used;
  for (const explained_node& each : of.nodes) text += NodeLines(each);
  for (const explained_block& each : of.blocks) text += BlockLines(each);
  for (const std::string_view name : of.used) used.append(used.empty() ? ": " : " ").append(name);
  return text + "memory registers: " + std::to_string(of.free) + " free, " +
         std::to_string(of.used.size()) + " used" + used + "\n";
}

std::string ExplanationJson(const explanation& of) {
  json_text json;
  json.OpenObject().Name("nodes").OpenArray();
  for (const explained_node& each : of.nodes) AddNode(json, each);
  json.CloseArray().Name("blocks").OpenArray();
  for (const explained_block& each : of.blocks) AddBlock(json, each);
  json.CloseArray().Name("registers").OpenObject().Name("used").OpenArray();
  for (const std::string_view name : of.used) json.Value(name);
  json.CloseArray().Name("free").Value(static_cast<std::int64_t>(of.free));
  json.CloseObject().CloseObject();
  return json.Take();
}

}  // namespace mardel
