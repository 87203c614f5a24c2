// Two edits of one design that do not touch the same things: merged in either order they give the
// same design, and what it changed is what both changed.
#include <limits>
#include <set>

#include "codegen/compare/design_diff.h"
#include "codegen/compare/design_merge.h"
#include "editor/deletion.h"
#include "fuzz/target.h"

namespace mardel {
namespace {

void AddBlock(design& document, std::int64_t id, const char* sub, std::int64_t x) {
  document.blocks.Append({.id = id,
                          .lib = "dsp",
                          .sub = sub,
                          .x = x,
                          .pins = {{1, "a", "", "", ""}},
                          .params = {{1, "p", "", "1", ""}}});
}

void AddNet(design& document, std::int64_t from, std::int64_t to, const char* pin) {
  if (FindBlock(document, from) == nullptr || FindBlock(document, to) == nullptr) return;
  net wire;
  wire.net_id = std::ssize(document.nets);
  wire.id_1 = from;
  wire.id_2 = to;
  wire.pin_1_name = wire.pin_2_name = pin;
  document.nets.Append(wire);
}

constexpr std::int64_t kLastId = std::numeric_limits<std::int64_t>::max();

// The blocks of even ids are one editor's, those of odd ids the other's.
struct editor {
  design& edited;
  std::int64_t own, next_id;
  std::int64_t places = 0;
  undo_stack undo = {};

  void Edit(unsigned what, unsigned which) {
    const std::int64_t id = (which % 8) * 2 + own;
    const char* const pin = own == 0 ? "a" : "b";
    dvblock* const block = FindBlock(edited, id);
    switch (what % 8) {
      case 0:
        AddBlock(edited, next_id, "Mix", NewPlace());
        return AddNet(edited, next_id++, id, pin);
      case 1:
        return AddNet(edited, id, (which / 8) * 2 + own, pin);
      case 2:
        return DeleteNetsFrom(id);
      case 3:
        return Annotate(id);
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
        DeleteBlock(edited, undo, id, recording::kOff);
    }
  }

  std::int64_t NewPlace() { return 1000 + 10 * ++places + own; }

  void DeleteNetsFrom(std::int64_t id) {
    for (auto each = edited.nets.begin(); each != edited.nets.end();) {
      each = each->id_1 == id ? edited.nets.Delete(each) : std::next(each);
    }
  }

  void Annotate(std::int64_t id) {
    for (textblock& note : edited.texts) {
      if (note.id == id) return static_cast<void>(note.y = NewPlace());
    }
    edited.texts.Append({.id = kLastId - own, .text_str = std::to_string(id), .x = NewPlace()});
  }
};

void Fill(design& base, std::string_view from) {
  for (std::int64_t id = 0; id < 16; ++id)
    AddBlock(base, id, id % 3 == 0 ? "Gain" : "Mix", 10 * id);
  for (const char byte : from) AddNet(base, byte % 16, byte / 16 % 16, "c");
  for (std::int64_t id = 0; id < 6; ++id) {
    base.texts.Append({.id = id, .text_str = "note", .x = 5 * id});
  }
}

void EditAll(design& edited, std::int64_t own, std::string_view from) {
  editor hand{edited, own, std::ssize(edited.blocks)};
  for (; from.size() >= 2; from.remove_prefix(2)) {
    hand.Edit(static_cast<unsigned char>(from[0]), static_cast<unsigned char>(from[1]));
  }
}

std::set<std::string> Changes(const design& from, const design& to) {
  std::set<std::string> lines;
  for (const design_change& each : DiffDesigns(from, to)) lines.insert(ChangeText(each));
  return lines;
}

}  // namespace

void TryInput(std::string_view input) {
  const std::size_t third = input.size() / 3;
  const std::string_view wires = input.substr(0, third);
  design base, left, right, one_way, other_way;
  for (design* each : {&base, &left, &right}) Fill(*each, wires);
  EditAll(left, 0, input.substr(third, third));
  EditAll(right, 1, input.substr(2 * third));
  Require(MergeDesigns(one_way, {base, left, right}).empty() &&
              MergeDesigns(other_way, {base, right, left}).empty(),
          "no conflict");
  Require(Changes(one_way, other_way).empty(), "either order gives the same design");
  std::set<std::string> both = Changes(base, left);
  both.merge(Changes(base, right));
  Require(Changes(base, one_way) == both, "the changes are those of both");
}

}  // namespace mardel
