#include "codegen/compare/merge_records.h"

#include <map>
#include <optional>
#include <string_view>
#include <tuple>

#include "codegen/compare/design_diff.h"

namespace mardel {
namespace {

std::string Words(point place) {
  return std::to_string(place.x) + ", " + std::to_string(place.y);
}
std::string Words(const std::string& text) {
  return '"' + text + '"';
}
std::string Words(std::int64_t number) {
  return std::to_string(number);
}
std::string Words(const std::optional<pin>& of) {
  return of ? Words(of->pin_num) : "none";
}
std::string Words(const std::optional<param>& of) {
  return of ? Words(of->param_value) : "none";
}

// One record's values and what is said when they conflict.
struct value_merger {
  std::string record;
  std::vector<std::string>& conflicts;

  // The change of the one side that made one; ours where both made different ones.
  template <class value>
  value Merge(const std::string& name, const value& base, const value& ours, const value& theirs) {
    if (theirs == base || theirs == ours) return ours;
    if (ours == base) return theirs;
    conflicts.push_back(record + ": " + name + " is " + Words(ours) + " in ours and " +
                        Words(theirs) + " in theirs");
    return ours;
  }
};

const std::string& NameOf(const pin& of) {
  return of.pin_name;
}
const std::string& NameOf(const param& of) {
  return of.param_name;
}

// A block's pins or parameters by name, and of equal names by order.
template <class entry>
using entries_by_name = std::map<std::pair<std::string_view, int>, entry>;

template <class entry>
entries_by_name<entry> Index(const std::vector<entry>& entries) {
  entries_by_name<entry> index;
  std::map<std::string_view, int> seen;
  for (const entry& each : entries) {
    index.emplace(std::pair(std::string_view(NameOf(each)), seen[NameOf(each)]++), each);
  }
  return index;
}

template <class entry>
std::optional<entry> Find(const entries_by_name<entry>& in,
                          const std::pair<std::string_view, int>& key) {
  const auto found = in.find(key);
  return found == in.end() ? std::nullopt : std::optional(found->second);
}

// In the order of ours, then what only theirs has.
template <class entry>
std::vector<entry> MergeEntries(const versions_of<std::vector<entry>>& of, value_merger& values) {
  if (*of.theirs == *of.base) return *of.ours;
  if (*of.ours == *of.base) return *of.theirs;
  const auto base = Index(*of.base), ours = Index(*of.ours), theirs = Index(*of.theirs);
  std::vector<entry> merged;
  const auto add_all = [&](const std::vector<entry>& side, bool is_ours) {
    std::map<std::string_view, int> seen;
    for (const entry& each : side) {
      const std::pair key(std::string_view(NameOf(each)), seen[NameOf(each)]++);
      if (!is_ours && ours.contains(key)) continue;
      const auto kept =
          values.Merge(NameOf(each), Find(base, key), Find(ours, key), Find(theirs, key));
      if (kept) merged.push_back(*kept);
    }
  };
  add_all(*of.ours, true);
  add_all(*of.theirs, false);
  return merged;
}

// A copy of ours at the merged place.
template <class record>
record MergePlace(const versions_of<record>& of, value_merger& values) {
  const auto at = [](const record* each) { return point{each->x, each->y}; };
  record merged = *of.ours;
  const point place = values.Merge("place", at(of.base), at(of.ours), at(of.theirs));
  merged.x = place.x;
  merged.y = place.y;
  return merged;
}

auto Fields(const dvblock& block) {
  return std::tie(block.x, block.y, block.lib, block.pins, block.params);
}

auto Fields(const textblock& note) {
  return std::tie(note.x, note.y, note.text_str);
}

}  // namespace

std::array<std::int64_t, 2> PinNumbersOf(const aligned_net& of, std::size_t version) {
  const std::array all = {of.one.base, of.one.ours, of.one.theirs};
  const net& wire = *all.at(version);
  if (of.is_turned.at(version)) return {wire.pin_2_num, wire.pin_1_num};
  return {wire.pin_1_num, wire.pin_2_num};
}

bool IsChanged(const dvblock& base, const dvblock& side) {
  return Fields(base) != Fields(side);
}

bool IsChanged(const textblock& base, const textblock& side) {
  return Fields(base) != Fields(side);
}

dvblock MergeBlock(const versions_of<dvblock>& of, std::vector<std::string>& conflicts) {
  const auto& [base, ours, theirs] = of;
  value_merger values{BlockWords(*base), conflicts};
  dvblock merged = MergePlace(of, values);
  merged.lib = values.Merge("library", base->lib, ours->lib, theirs->lib);
  merged.pins = MergeEntries<pin>({&base->pins, &ours->pins, &theirs->pins}, values);
  merged.params = MergeEntries<param>({&base->params, &ours->params, &theirs->params}, values);
  return merged;
}

textblock MergeNote(const versions_of<textblock>& of, std::vector<std::string>& conflicts) {
  const auto& [base, ours, theirs] = of;
  value_merger values{NoteWords(*base), conflicts};
  textblock merged = MergePlace(of, values);
  merged.text_str = values.Merge("text", base->text_str, ours->text_str, theirs->text_str);
  return merged;
}

net MergeNet(const aligned_net& of, const std::string& words, std::vector<std::string>& conflicts) {
  const auto& [base, ours, theirs] = of.one;
  net merged = *ours;
  if (theirs == nullptr) return merged;
  value_merger values{words, conflicts};
  const auto our_numbers = PinNumbersOf(of, 1);
  const auto base_numbers = base == nullptr ? our_numbers : PinNumbersOf(of, 0);
  auto numbers = PinNumbersOf(of, 2);
  for (std::size_t end = 0; end < numbers.size(); ++end) {
    numbers.at(end) =
        values.Merge("pin number", base_numbers.at(end), our_numbers.at(end), numbers.at(end));
  }
  merged.pin_1_num = numbers.at(of.is_turned[1] ? 1 : 0);
  merged.pin_2_num = numbers.at(of.is_turned[1] ? 0 : 1);
  return merged;
}

}  // namespace mardel
