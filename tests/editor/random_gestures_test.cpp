// Thousands of sequences of what a hand can do, sensible or not, from one seed: the design holds
// together after every step, and undo takes all of it back.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

#include "editor/snapshot.h"
#include "tests/editor/workbench.h"

namespace mardel {
namespace {

// The design without the order of its lists, whatever is selected or highlighted.
std::multiset<std::string> Content(workbench& bench) {
  ClearSelection(bench.document);
  std::multiset<std::string> all;
  for (const dvblock& block : bench.document.blocks) all.insert(WriteSnapshot(block));
  for (const net& wire : bench.document.nets) all.insert(WriteSnapshot(wire));
  for (const textblock& note : bench.document.texts) all.insert(WriteSnapshot(note));
  return all;
}

template <class T>
bool HasUniqueIds(const cursor_list<T>& list, std::int64_t T::*id, std::int64_t next_id) {
  std::set<std::int64_t> ids;
  for (const T& each : list) ids.insert(each.*id);
  return ids.size() == list.size() && (ids.empty() || *ids.rbegin() < next_id);
}

bool HasPin(const design& document, std::int64_t id, const std::string& name) {
  const dvblock* block = FindBlock(document, id);
  return block != nullptr &&
         std::ranges::any_of(block->pins, [&](const pin& p) { return p.pin_name == name; });
}

bool HoldsTogether(workbench& bench) {
  const design& document = bench.document;
  const bool dialog_lists_nets = bench.work.dialog.kind == dialog_kind::kPin;
  const auto is_selected = [](const auto& each) { return each.selected; };
  return HasUniqueIds(document.blocks, &dvblock::id, document.next_block_id) &&
         HasUniqueIds(document.nets, &net::net_id, document.next_net_id) &&
         HasUniqueIds(document.texts, &textblock::id, document.next_text_id) &&
         std::ranges::all_of(
             document.nets,
             [&](const net& wire) {
               return HasPin(document, wire.id_1, wire.pin_1_name) &&
                      HasPin(document, wire.id_2, wire.pin_2_name) &&
                      (dialog_lists_nets || (wire.color == kNetColour && !wire.selected));
             }) &&
         document.has_selection == (std::ranges::any_of(document.blocks, is_selected) ||
                                    std::ranges::any_of(document.texts, is_selected)) &&
         bench.work.hand.wire_start.has_value() == (bench.work.hand.mode == drag_mode::kWire) &&
         (bench.work.dialog.number != 0) == !bench.desk.windows.empty();
}

class random_hand {
 public:
  random_hand(workbench& bench, unsigned seed) : bench_(bench), random_(seed) {}

  void DoAnything() {
    if (bench_.work.dialog.number != 0) return AnswerDialog();
    const unsigned choice = Below(24);
    if (choice < 18) return MoveMouse(choice);
    if (choice == 18) return HandleKey(bench_.work, bench_.outside, {kDeleteKeyCode});
    if (choice == 19) return HandleInterruption(bench_.work, bench_.outside);
    ResetInteraction(bench_.work, bench_.outside);
    if (choice == 20) return PlaceBlock(bench_.work, bench_.outside, Amp());
    if (choice == 21) return OpenAddNote(bench_.work, bench_.outside);
    if (choice == 22) Undo(bench_.work, bench_.outside);
  }

 private:
  void MoveMouse(unsigned choice) {
    const auto action = static_cast<mouse_action>(choice < 17 ? choice % 3 : 3);
    bench_.Mouse(action, SomePoint());
    if (action == mouse_action::kMove || action == mouse_action::kLeftPress) return;
    EXPECT_EQ(bench_.work.hand.mode, drag_mode::kNone);
  }
  void AnswerDialog() {
    const int number = bench_.work.dialog.number;
    for (const gadget& each : bench_.desk.windows.at(number).gadgets) {
      bench_.desk.checked[{number, each.id}] = Below(3) == 0;
      bench_.desk.typed[{number, each.id}] = std::string(Below(4), "\na<"[Below(3)]);
    }
    if (Below(4) == 0) return CancelDialog(bench_.work, bench_.outside);
    bench_.Use(1);
  }
  template <class T>
  const T& SomeOf(cursor_list<T>& list) {
    return *std::next(list.begin(), Below(static_cast<unsigned>(list.size())));
  }
  // Mostly where something is, or so far out that a band takes in much.
  point SomePoint() {
    const unsigned choice = Below(8);
    if (choice < 4 && !bench_.document.blocks.empty()) {
      const dvblock& block = SomeOf(bench_.document.blocks);
      return choice < 3 ? PinCentre(block, block.pins[Below(5)]) : point{block.x + 9, block.y + 9};
    }
    if (choice == 4 && !bench_.document.texts.empty()) {
      const textblock& note = SomeOf(bench_.document.texts);
      return {note.x + 1, note.y + 1};
    }
    if (choice == 5) return Below(2) == 0 ? point{-500, -500} : point{2500, 1500};
    return {static_cast<int>(Below(2300)) - 200, static_cast<int>(Below(1500)) - 200};
  }
  unsigned Below(unsigned limit) { return static_cast<unsigned>(random_() % limit); }

  workbench& bench_;
  std::mt19937 random_;
};

void FillDesign(workbench& bench) {
  for (const point at : {point{100, 100}, {130, 110}, {700, 500}, {1900, 1070}, {-300, 20}}) {
    bench.AddBlock(at);
  }
  bench.AddNet(0, "OUT", 1, "IN");
  bench.AddNet(1, "OUT", 2, "IN");
  bench.AddNet(2, "CV", 2, "CV");
  bench.AddNote({110, 120}, "over a block");
  bench.AddNote({800, 600}, "two\nlines");
}

TEST(RandomGestures, HoldTogetherAndAreTakenBack) {
  for (unsigned seed = 0; seed < 3000; ++seed) {
    SCOPED_TRACE(seed);
    workbench bench;
    FillDesign(bench);
    const std::multiset<std::string> before = Content(bench);
    random_hand hand(bench, seed);
    for (int step = 0; step < 60; ++step) {
      hand.DoAnything();
      ASSERT_TRUE(HoldsTogether(bench)) << "after step " << step;
    }
    if (bench.work.dialog.number != 0) CancelDialog(bench.work, bench.outside);
    while (!bench.work.undo.records.empty()) Undo(bench.work, bench.outside);
    ASSERT_EQ(Content(bench), before);
  }
}

}  // namespace
}  // namespace mardel
