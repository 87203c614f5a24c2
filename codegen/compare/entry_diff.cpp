#include "codegen/compare/entry_diff.h"

#include <map>
#include <string_view>
#include <utility>

namespace mardel {
namespace {

// A value's name and which of that name it is.
using entry_key = std::pair<std::string, int>;

struct entry {
  std::optional<std::string> before, after;
};

using entries = std::map<entry_key, entry>;

void Add(entries& all, std::string name, std::optional<std::string> entry::* side,
         std::string value) {
  entry_key key{std::move(name), 0};
  while (all[key].*side) ++key.second;
  all[key].*side = std::move(value);
}

void AddAll(entries& all, const dvblock& block, std::optional<std::string> entry::* side) {
  for (const param& p : block.params) {
    Add(all, p.param_name, side, p.param_value);
    Add(all, "number of " + p.param_name, side, std::to_string(p.param_num));
  }
  for (const pin& p : block.pins) Add(all, "pin " + p.pin_name, side, std::to_string(p.pin_num));
}

}  // namespace

std::vector<entry_change> DiffEntries(const dvblock& before, const dvblock& after) {
  if (before.params == after.params && before.pins == after.pins) return {};
  entries all;
  AddAll(all, before, &entry::before);
  AddAll(all, after, &entry::after);
  std::vector<entry_change> changes;
  for (auto& [key, both] : all) {
    if (both.before == both.after) continue;
    changes.push_back({key.first, std::move(both.before), std::move(both.after)});
  }
  return changes;
}

}  // namespace mardel
