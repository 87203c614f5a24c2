// Two edits of one design that do not touch the same things: merged in either order they give the
// same design, and what it changed is what both changed.
#include <set>

#include "codegen/compare/design_diff.h"
#include "codegen/compare/design_merge.h"
#include "fuzz/target.h"

namespace mardel {
namespace {

// The blocks of even ids are one editor's, those of odd ids the other's.
class editor {
 public:
  editor(design& edited, std::int64_t own, std::int64_t count)
      : edited_(edited), own_(own), count_(count) {}

  void Edit(unsigned what, unsigned which) {
    const std::int64_t id = (which % 8) * 2 + own_;
    dvblock* const block = FindBlock(edited_, id);
    switch (what % 8) {
      case 0:
        return Place(id);
      case 1:
        return Wire(id, (which / 8) * 2 + own_);
      case 2:
        return DeleteWhere(edited_.nets, [id](const net& wire) { return wire.id_1 == id; });
      case 3:
        return Annotate(which);
      case 4:
        if (block != nullptr) block->x = NewPlace();
        return;
      case 5:
        if (block != nullptr) block->params[0].param_value += 'v';
        return;
      case 6:
        if (block != nullptr) block->lib += 'l';
        return;
      default:
        DeleteWhere(edited_.nets, [id](const net& wire) { return Touches(wire, id); });
        DeleteWhere(edited_.blocks, [id](const dvblock& each) { return each.id == id; });
    }
  }

 private:
  template <class record, class predicate>
  static void DeleteWhere(cursor_list<record>& list, predicate is_meant) {
    for (auto each = list.begin(); each != list.end();) {
      each = is_meant(*each) ? list.Delete(each) : std::next(each);
    }
  }

  std::int64_t NewPlace() { return 1000 + 10 * ++places_ + own_; }

  void Place(std::int64_t wired_to) {
    const std::int64_t id = count_ + added_++;
    edited_.blocks.Append({.id = id,
                           .lib = "dsp",
                           .sub = "Mix",
                           .x = NewPlace(),
                           .pins = {{1, "a", "", "", ""}},
                           .params = {{1, "p", "", "1", ""}}});
    if (FindBlock(edited_, wired_to) != nullptr) Wire(id, wired_to);
  }

  void Wire(std::int64_t from, std::int64_t to) {
    if (FindBlock(edited_, from) == nullptr || FindBlock(edited_, to) == nullptr) return;
    net wire;
    wire.net_id = std::ssize(edited_.nets);
    wire.id_1 = from;
    wire.id_2 = to;
    wire.pin_1_name = wire.pin_2_name = own_ == 0 ? "a" : "b";
    edited_.nets.Append(wire);
  }

  void Annotate(unsigned which) {
    for (textblock& note : edited_.texts) {
      if (note.id != which % 8 * 2 + own_) continue;
      note.y = NewPlace();
      return;
    }
    edited_.texts.Append({.id = 100, .text_str = std::to_string(which), .x = NewPlace()});
  }

  design& edited_;
  std::int64_t own_, count_;
  std::int64_t added_ = 0, places_ = 0;
};

void Fill(design& base, std::string_view from) {
  for (std::int64_t id = 0; id < 16; ++id) {
    base.blocks.Append({.id = id,
                        .lib = "dsp",
                        .sub = id % 3 == 0 ? "Gain" : "Mix",
                        .x = 10 * id,
                        .pins = {{1, "a", "", "", ""}},
                        .params = {{1, "p", "", "1", ""}}});
  }
  for (const char byte : from) {
    net wire;
    wire.net_id = std::ssize(base.nets);
    wire.id_1 = byte % 16;
    wire.id_2 = byte / 16 % 16;
    wire.pin_1_name = wire.pin_2_name = "c";
    base.nets.Append(wire);
  }
  for (std::int64_t id = 0; id < 6; ++id) {
    base.texts.Append({.id = id, .text_str = "note", .x = 5 * id});
  }
}

void EditAll(design& edited, std::int64_t own, std::string_view from) {
  editor hand(edited, own, std::ssize(edited.blocks));
  for (; from.size() >= 2; from.remove_prefix(2)) {
    hand.Edit(static_cast<unsigned char>(from[0]), static_cast<unsigned char>(from[1]));
  }
}

std::set<std::string> Changes(const design& from, const design& to) {
  std::set<std::string> lines;
  for (const design_change& each : DiffDesigns(from, to)) lines.insert(ChangeText(each));
  return lines;
}

void Merge(design& merged, const three_designs& versions) {
  Require(MergeDesigns(merged, versions).empty(), "no conflict");
}

}  // namespace

void TryInput(std::string_view input) {
  const std::size_t third = input.size() / 3;
  const std::string_view wires = input.substr(0, third);
  design base, left, right, one_way, other_way;
  for (design* each : {&base, &left, &right}) Fill(*each, wires);
  EditAll(left, 0, input.substr(third, third));
  EditAll(right, 1, input.substr(2 * third));
  Merge(one_way, {base, left, right});
  Merge(other_way, {base, right, left});
  Require(Changes(one_way, other_way).empty(), "either order gives the same design");
  std::set<std::string> both = Changes(base, left);
  both.merge(Changes(base, right));
  Require(Changes(base, one_way) == both, "the changes are those of both");
}

}  // namespace mardel
