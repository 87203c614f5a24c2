#include "codegen/design_check.h"

#include <unordered_map>

namespace mardel {
namespace {

using block_names = std::unordered_map<std::int64_t, std::string_view, id_hash>;

report Mismatch(const net& wire, const block_names& names) {
  const auto name_of = [&](std::int64_t id) {
    const auto found = names.find(id);
    return found == names.end() ? std::string() : std::string(found->second);
  };
  return {.kind = rule::kTypeMismatch,
          .text = {"Net Error", "Pin type mismatch: " + name_of(wire.id_1) + ":" + wire.pin_1_name +
                                    " -- " + name_of(wire.id_2) + ":" + wire.pin_2_name},
          .where = {.net_id = wire.net_id,
                    .at = point{wire.x_1, wire.y_1},
                    .other_end = point{wire.x_2, wire.y_2}}};
}

report OnBlock(const dvblock& block, rule kind, const char* title, const std::string& problem) {
  return {.kind = kind,
          .text = {title, problem + " on block " + std::to_string(block.id) + ", " + block.sub},
          .where = {.block_id = block.id, .at = point{block.x, block.y}}};
}

void CheckBlock(const dvblock& block, const net_ends& ends, std::vector<report>& found) {
  for (const param& p : block.params) {
    if (p.param_value.empty()) found.push_back(UnsetParameter(block, p.param_name));
  }
  for (const pin& p : block.pins) {
    if (ends.Find(block.id, p.pin_name) != kNoNumber) continue;
    found.push_back(
        OnBlock(block, rule::kUnconnectedPin, "Unconnected Pin Error", "Unconnected pin"));
    found.back().text.text += " pin: " + p.pin_name;
  }
}

}  // namespace

report UnsetParameter(const dvblock& block, std::string_view name) {
  report found =
      OnBlock(block, rule::kUnsetParameter, "Parameter Error", "Failed to set a parameter");
  found.text.text.append(" parameter: ").append(name);
  return found;
}

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

std::vector<report> FindTypeMismatches(const design& document, const net_ends& ends,
                                       const std::vector<std::string_view>& types,
                                       problem_search search) {
  std::vector<const net*> mismatched;
  for (const end_pair& both : ends.Pairs()) {
    if (types[both.first] == types[both.second]) continue;
    mismatched.push_back(both.wire);
    if (search == problem_search::kFirst) break;
  }
  if (mismatched.empty()) return {};

  block_names names;
  for (const dvblock& block : document.blocks) names.emplace(block.id, block.sub);
  std::vector<report> found;
  for (const net* wire : mismatched) found.push_back(Mismatch(*wire, names));
  return found;
}

std::vector<report> FindTypeMismatches(const design& document, problem_search search) {
  const net_ends ends(document.nets);
  return FindTypeMismatches(document, ends, EndTypes(document, ends), search);
}

std::vector<report> CheckDesign(const design& document, problem_search search,
                                std::span<const net> removed) {
  const net_ends ends(document.nets, removed);
  std::vector<report> found;
  for (const dvblock& block : document.blocks) {
    CheckBlock(block, ends, found);
    if (search == problem_search::kFirst && !found.empty()) {
      found.resize(1);
      break;
    }
  }
  return found;
}

}  // namespace mardel
