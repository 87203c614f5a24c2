#include <unordered_map>

#include "codegen/netlist_steps.h"

namespace mardel {
namespace {

message Problem(const char* title, std::string text) {
  return {title, std::move(text), message_buttons::kOk, message_icon::kStop};
}

using block_names = std::unordered_map<std::int64_t, std::string_view, id_hash>;

std::string Mismatch(const net& wire, const block_names& names) {
  const auto name_of = [&](std::int64_t id) {
    const auto found = names.find(id);
    return found == names.end() ? std::string() : std::string(found->second);
  };
  return "Pin type mismatch: " + name_of(wire.id_1) + ":" + wire.pin_1_name + " -- " +
         name_of(wire.id_2) + ":" + wire.pin_2_name;
}

std::string OnBlock(const dvblock& block) {
  return " on block " + std::to_string(block.id) + ", " + block.sub;
}

void CheckBlock(const dvblock& block, const net_ends& ends, std::vector<design_problem>& found) {
  for (const param& p : block.params) {
    if (!p.param_value.empty()) continue;
    found.push_back({Problem("Parameter Error", "Failed to set a parameter" + OnBlock(block) +
                                                    " parameter: " + p.param_name)});
  }
  for (const pin& p : block.pins) {
    if (ends.Find(block.id, p.pin_name) != kNoNumber) continue;
    found.push_back({Problem("Unconnected Pin Error",
                             "Unconnected pin" + OnBlock(block) + " pin: " + p.pin_name)});
  }
}

}  // namespace

std::vector<std::string_view> EndTypes(const design& document, const net_ends& ends) {
  std::vector<std::string_view> types(ends.Count());
  numbering<std::int64_t, id_hash> ids(document.blocks.size());
  for (const dvblock& block : document.blocks) {
    if (ids.Find(block.id) != kNoNumber) continue;  // the first block of an id counts
    ids.Number(block.id);
    for (const pin& p : block.pins) {
      const std::uint32_t end = ends.Find(block.id, p.pin_name);
      if (end != kNoNumber && types[end].data() == nullptr) types[end] = p.pin_type;
    }
  }
  return types;
}

std::vector<design_problem> FindTypeMismatches(const design& document, const net_ends& ends,
                                               const std::vector<std::string_view>& types,
                                               problem_search search) {
  std::vector<design_problem> found;
  for (const end_pair& both : ends.Pairs()) {
    if (types[both.first] == types[both.second]) continue;
    found.push_back({{}, both.wire});
    if (search == problem_search::kFirst) break;
  }
  if (found.empty()) return found;

  block_names names;
  for (const dvblock& block : document.blocks) names.emplace(block.id, block.sub);
  for (design_problem& problem : found) {
    problem.report = Problem("Net Error", Mismatch(*problem.wire, names));
  }
  return found;
}

std::vector<design_problem> FindTypeMismatches(const design& document, problem_search search) {
  const net_ends ends(document.nets);
  return FindTypeMismatches(document, ends, EndTypes(document, ends), search);
}

std::vector<design_problem> FindUnsetAndUnconnected(const design& document, problem_search search) {
  const net_ends ends(document.nets);
  std::vector<design_problem> found;
  for (const dvblock& block : document.blocks) {
    CheckBlock(block, ends, found);
    if (search == problem_search::kFirst && !found.empty()) {
      found.resize(1);
      break;
    }
  }
  return found;
}

bool CheckDesign(const design& document, ui& desk) {
  const std::vector<design_problem> problems =
      FindUnsetAndUnconnected(document, problem_search::kFirst);
  if (problems.empty()) return true;
  desk.ShowMessage(problems.front().report);
  return false;
}

}  // namespace mardel
