#include "codegen/compare/design_diff.h"

#include <algorithm>
#include <tuple>

#include "codegen/compare/entry_diff.h"
#include "platform/escaping.h"

namespace mardel {
namespace {

template <class record>
std::string Place(const record& of) {
  return std::to_string(of.x) + ", " + std::to_string(of.y);
}

std::string Quoted(std::string_view text) {
  return '"' + std::string(text) + '"';
}

template <class record>
std::optional<change_kind> WholeChange(const matched<record>& of) {
  if (of.old_one == nullptr) return change_kind::kAdded;
  if (of.new_one == nullptr) return change_kind::kRemoved;
  return std::nullopt;
}

// " with level "0.5", mix "2"", in order of name.
std::string ValueWords(const dvblock& block) {
  std::vector<std::string> values;
  for (const param& p : block.params) {
    values.push_back(p.param_name + " " + Quoted(p.param_value));
  }
  std::ranges::sort(values);
  std::string words;
  for (const std::string& each : values) words += (words.empty() ? " with " : ", ") + each;
  return words;
}

void DiffBlock(const matched<dvblock>& both, std::vector<design_change>& found) {
  const auto& [before, after] = both;
  design_change change{.block = both, .subject = BlockWords(before != nullptr ? *before : *after)};
  if (const auto whole = WholeChange(both)) {
    change.kind = *whole;
    change.subject += ValueWords(before != nullptr ? *before : *after);
    found.push_back(change);
    return;
  }
  const auto add = [&](change_kind kind, entry_change value) {
    design_change& added = found.emplace_back(change);
    added.kind = kind;
    added.field = std::move(value.name);
    added.from = std::move(value.from);
    added.to = std::move(value.to);
  };
  if (before->x != after->x || before->y != after->y) {
    add(change_kind::kMoved, {"", Place(*before), Place(*after)});
  }
  if (before->lib != after->lib) add(change_kind::kChanged, {"library", before->lib, after->lib});
  for (entry_change& each : DiffEntries(*before, *after)) {
    add(change_kind::kChanged, std::move(each));
  }
}

void DiffWire(const matched<net>& both, const blocks_by_id& old_blocks,
              const blocks_by_id& new_blocks, std::vector<design_change>& found) {
  const auto& [before, after] = both;
  design_change change{.wire = both,
                       .subject = before != nullptr ? WireWords(*before, old_blocks)
                                                    : WireWords(*after, new_blocks)};
  if (const auto whole = WholeChange(both)) {
    change.kind = *whole;
    found.push_back(change);
    return;
  }
  const auto numbers = [](const net& wire) { return std::minmax(wire.pin_1_num, wire.pin_2_num); };
  const auto [old_low, old_high] = numbers(*before);
  const auto [new_low, new_high] = numbers(*after);
  if (old_low == new_low && old_high == new_high) return;
  change.field = "pin numbers";
  change.from = std::to_string(before->pin_1_num) + ", " + std::to_string(before->pin_2_num);
  change.to = std::to_string(after->pin_1_num) + ", " + std::to_string(after->pin_2_num);
  found.push_back(change);
}

void DiffNote(const matched<textblock>& both, std::vector<design_change>& found) {
  const auto& [before, after] = both;
  design_change change{.note = both, .subject = NoteWords(before != nullptr ? *before : *after)};
  if (const auto whole = WholeChange(both)) {
    change.kind = *whole;
    found.push_back(change);
    return;
  }
  if (before->x != after->x || before->y != after->y) {
    change.kind = change_kind::kMoved;
    change.from = Place(*before);
    change.to = Place(*after);
    found.push_back(change);
  }
  if (before->text_str == after->text_str) return;
  change.kind = change_kind::kChanged;
  change.field = "text";
  change.from = before->text_str;
  change.to = after->text_str;
  found.push_back(change);
}

// Blocks, wires, notes; each by place.
auto SortKey(const design_change& of) {
  const auto place = [](const auto& both) {
    const auto& one = both.old_one != nullptr ? *both.old_one : *both.new_one;
    return point{one.x, one.y};
  };
  int list = 1;
  point at;
  if (of.block.old_one != nullptr || of.block.new_one != nullptr) {
    list = 0;
    at = place(of.block);
  } else if (of.note.old_one != nullptr || of.note.new_one != nullptr) {
    list = 2;
    at = place(of.note);
  }
  return std::tuple(list, at.x, at.y, std::string_view(of.subject));
}

std::string EndWords(std::int64_t id, const std::string& pin_name, const blocks_by_id& blocks) {
  const auto found = blocks.find(id);
  if (found == blocks.end()) return "no block pin " + pin_name;
  return found->second->sub + " at " + Place(*found->second) + " pin " + pin_name;
}

std::string Details(const design_change& change) {
  switch (change.kind) {
    case change_kind::kAdded:
    case change_kind::kRemoved:
      return {};
    case change_kind::kMoved:
      return " from " + *change.from + " to " + *change.to;
    case change_kind::kChanged:
      break;
  }
  return ": " + change.field + (change.from ? " from " + Quoted(*change.from) : " added") +
         (change.to ? " to " + Quoted(*change.to) : " removed");
}

}  // namespace

std::string_view KindWord(const design_change& of) {
  if (of.block.old_one != nullptr || of.block.new_one != nullptr) return "block";
  return of.note.old_one != nullptr || of.note.new_one != nullptr ? "note" : "wire";
}

std::string BlockWords(const dvblock& block) {
  return "block " + block.sub + " of " + block.lib + " at " + Place(block);
}

std::string WireWords(const net& wire, const blocks_by_id& blocks) {
  const auto key = [&](std::int64_t id, const std::string& pin_name) {
    const auto found = blocks.find(id);
    const point at =
        found == blocks.end() ? point{id, 0} : point{found->second->x, found->second->y};
    return std::tuple(found == blocks.end(), at.x, at.y, EndWords(id, pin_name, blocks));
  };
  auto first = key(wire.id_1, wire.pin_1_name), second = key(wire.id_2, wire.pin_2_name);
  if (second < first) std::swap(first, second);
  return "wire from " + std::get<3>(first) + " to " + std::get<3>(second);
}

std::string NoteWords(const textblock& note) {
  return "note " + Quoted(note.text_str) + " at " + Place(note);
}

std::vector<design_change> DiffDesigns(const design& old_one, const design& new_one) {
  const design_match match = MatchDesigns(old_one, new_one);
  const blocks_by_id old_blocks = IndexBlocks(old_one.blocks);
  blocks_by_id new_blocks = IndexBlocks(new_one.blocks);
  std::vector<design_change> found;
  for (const auto& both : match.blocks) {
    DiffBlock(both, found);
    if (both.old_one == nullptr || both.new_one == nullptr) continue;
    const dvblock*& named = new_blocks.at(both.new_one->id);
    if (named == both.new_one) named = both.old_one;  // wires name it as everything else does
  }
  for (const auto& both : match.nets) DiffWire(both, old_blocks, new_blocks, found);
  for (const auto& both : match.texts) DiffNote(both, found);
  std::ranges::stable_sort(found, {}, SortKey);
  return found;
}

std::string ChangeText(const design_change& change) {
  constexpr const char* kVerbs[] = {"added ", "removed ", "moved ", "changed "};  // by change_kind
  return EscapeControls(kVerbs[static_cast<std::size_t>(change.kind)] + change.subject +
                        Details(change));
}

}  // namespace mardel
