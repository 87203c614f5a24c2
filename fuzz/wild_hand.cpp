#include "fuzz/wild_hand.h"

#include <algorithm>
#include <iterator>

namespace mardel {
namespace {

// More than a few blocks only make the run slow.
constexpr std::size_t kManyBlocks = 40;
// At the end of the libraries, of the one that comes from a file.
constexpr std::size_t kOwnBlocks = 7;

// kept: values are written raw, so that with "<" or "&" a file does not open again.
const std::vector<std::string> kTyped = {"",     "0",  "0x7FFF",    "a b",     " 1 ", "\t",
                                         "ü€\"", "'>", "long long", "\"quote", "-1",  "]"};
const std::vector<std::string> kLines = {"\n", "", "a & b", "<b>x</b>", " ", "\t", "]]>", "é"};

canvas_mouse Mouse(mouse_action action, point at) {
  return {action, at};
}

}  // namespace

event wild_hand::Next() {
  event next = Choose();
  // No button is pressed twice; the desktop tells when a release is lost.
  auto* mouse = std::get_if<canvas_mouse>(&next);
  if (mouse != nullptr && mouse->action == mouse_action::kLeftPress && is_held_) {
    mouse->action = mouse_action::kMove;
  }
  if (mouse != nullptr && mouse->action == mouse_action::kLeftPress) is_held_ = true;
  if (mouse != nullptr && mouse->action == mouse_action::kLeftRelease) is_held_ = false;
  if (std::holds_alternative<canvas_interrupted>(next)) is_held_ = false;
  return next;
}

event wild_hand::Choose() {
  if (random_.OneIn(60)) return canvas_interrupted{};
  if (random_.OneIn(200)) return main_window_resized{};
  if (const int modal = desk_.ModalWindow()) {
    plan_.clear();
    return AnswerWindow(modal);
  }
  if (plan_.empty()) Plan();
  if (plan_.empty() || random_.OneIn(25)) return SingleEvent();
  const event next = plan_.front();
  plan_.pop_front();
  return next;
}

event wild_hand::AnswerWindow(int number) {
  if (random_.OneIn(12)) return window_close_requested{number};
  Fill(number);
  std::vector<int> buttons;
  for (const gadget& each : desk_.open_windows.at(number).gadgets) {
    if (each.kind == gadget_kind::kButton || each.kind == gadget_kind::kDefaultButton) {
      buttons.push_back(each.id);
    }
  }
  // The first button is OK.
  return gadget_used{number, random_.OneIn(4) ? random_.SomeOf(buttons) : buttons.front()};
}

void wild_hand::Fill(int number) {
  for (const gadget& each : desk_.open_windows.at(number).gadgets) {
    if (each.kind == gadget_kind::kTextField && random_.OneIn(2)) {
      desk_.Type(number, each.id, random_.SomeOf(kTyped));
    }
    if (each.kind == gadget_kind::kEditor && !random_.OneIn(4)) {
      std::string text;
      for (std::size_t i = random_.Below(6); i > 0; --i) {
        text += random_.OneIn(2) ? random_.SomeOf(kLines) : random_.SomeOf(kTyped);
      }
      desk_.Type(number, each.id, text);
    }
    if (each.kind == gadget_kind::kCheckBox) desk_.Check(number, each.id, random_.OneIn(5));
  }
}

void wild_hand::Plan() {
  const std::size_t choice = random_.Below(30);
  if (choice < 11) return PlanDrag(OnSomePin(), OnSomePin());
  if (choice < 15) return PlanDrag(SomePoint(), Anywhere());
  if (choice < 17) return PlanBand();
  if (choice < 19) return PlanDrag(OnSelection(), Anywhere());
  if (choice == 19) return plan_.push_back(Mouse(mouse_action::kDoubleClick, SomePoint()));
  if (choice == 20) return plan_.push_back(Mouse(mouse_action::kRightPress, OnSomePin()));
  if (choice < 25) return PlanBlock();
  if (choice == 25) return plan_.push_back(menu_chosen{app_.ids.undo});
  if (choice == 26) return plan_.push_back(menu_chosen{SomeMenuId()});
  if (choice == 27) return plan_.push_back(menu_chosen{app_.ids.add_text});
  if (random_.OneIn(100)) PlanGeneration();
}

// Of a design that can be generated, since it has no pins.
void wild_hand::PlanGeneration() {
  plan_ = {menu_chosen{app_.ids.new_design}, menu_chosen{SomeBlockId()},
           menu_chosen{app_.ids.generate + static_cast<int>(random_.Below(3))}};
}

// New blocks lie upon each other until they are dragged away.
void wild_hand::PlanBlock() {
  plan_.emplace_back(menu_chosen{SomeBlockId()});
  if (!random_.OneIn(4)) PlanDrag({25, 32}, Anywhere());
}

void wild_hand::PlanDrag(point from, point to) {
  plan_.emplace_back(Mouse(mouse_action::kLeftPress, from));
  for (std::size_t i = random_.Below(4); i > 0; --i) {
    plan_.emplace_back(Mouse(mouse_action::kMove, i == 1 ? to : SomePoint()));
  }
  plan_.emplace_back(Mouse(mouse_action::kLeftRelease, to));
}

void wild_hand::PlanBand() {
  const bool is_huge = random_.OneIn(4);
  PlanDrag(is_huge ? point{-600, 1700} : SomePoint(), is_huge ? point{2600, -600} : SomePoint());
  if (random_.OneIn(6)) plan_.emplace_back(canvas_key{kDeleteKeyCode});
}

event wild_hand::SingleEvent() {
  switch (random_.Below(12)) {
    case 0:
      return Mouse(mouse_action::kLeftPress, SomePoint());
    case 1:
      return Mouse(mouse_action::kLeftRelease, SomePoint());
    case 2:
      return Mouse(mouse_action::kRightPress, SomePoint());
    case 3:
      return canvas_key{random_.OneIn(2) ? kDeleteKeyCode : static_cast<int>(random_.Below(200))};
    case 4:
      return canvas_arrow{{random_.OneIn(2) ? 1 : -1, 0}, random_.OneIn(2), random_.OneIn(2)};
    case 5:
      return UseSomeWindow();
    case 6:
      if (!random_.OneIn(20)) return menu_chosen{app_.ids.escape};
      return main_window_close_requested{};
    case 7:
    case 8:
      return menu_chosen{SomeMenuId()};
    case 9:
      return canvas_shortcut{static_cast<edit_shortcut>(random_.Below(4))};
    default:
      return Mouse(mouse_action::kMove, SomePoint());
  }
}

// The window may be gone.
event wild_hand::UseSomeWindow() {
  const int number =
      1 + static_cast<int>(random_.Below(static_cast<std::size_t>(desk_.newest_window) + 1));
  if (random_.OneIn(3)) return window_close_requested{number};
  return gadget_used{number, static_cast<int>(random_.Below(4))};
}

int wild_hand::SomeMenuId() {
  const menu_ids& ids = app_.ids;
  switch (random_.Below(10)) {
    case 0:
      return static_cast<int>(random_.Below(static_cast<std::size_t>(ids.escape) + 20)) - 10;
    case 1:
      return random_.OneIn(8) ? ids.new_design : ids.save;
    case 2:
      return random_.OneIn(3) ? ids.open : ids.save;
    case 3:
      return ids.save_as;
    case 4:
      return random_.OneIn(20) ? ids.block_directory : ids.add_text;
    case 5:
      return ids.add_text;
    case 6:
      return ids.preferences;
    case 7:
      return ids.first_location + static_cast<int>(random_.Below(kProgramLocations));
    default:
      return SomeBlockId();
  }
}

int wild_hand::SomeBlockId() {
  const auto& all = app_.libraries.Definitions();
  const std::size_t last = all.size() - 1;
  const bool is_any = random_.OneIn(6);
  if (app_.work.document.blocks.size() >= kManyBlocks && !is_any) return app_.ids.undo;
  return all[last - random_.Below(is_any ? all.size() : kOwnBlocks)].id;
}

point wild_hand::SomePoint() {
  const design& document = app_.work.document;
  switch (random_.Below(5)) {
    case 0:
    case 1:
      return OnSomePin();
    case 2:
      if (document.blocks.empty()) return Anywhere();
      return Inside(*std::next(document.blocks.begin(),
                               static_cast<long>(random_.Below(document.blocks.size()))));
    case 3:
      if (document.texts.empty()) return Anywhere();
      return Inside(*std::next(document.texts.begin(),
                               static_cast<long>(random_.Below(document.texts.size()))));
    default:
      return Anywhere();
  }
}

// Or a little beside it.
point wild_hand::OnSomePin() {
  const auto& blocks = app_.work.document.blocks;
  if (blocks.empty()) return Anywhere();
  const dvblock& block =
      *std::next(blocks.begin(), static_cast<long>(random_.Below(blocks.size())));
  if (block.pins.empty()) return Inside(block);
  const pin& some = random_.SomeOf(block.pins);
  return {block.x + some.pin_x + static_cast<std::int64_t>(random_.Below(7)),
          block.y + some.pin_y + static_cast<std::int64_t>(random_.Below(7))};
}

point wild_hand::OnSelection() {
  const design& document = app_.work.document;
  const auto block = std::ranges::find_if(document.blocks, &dvblock::selected);
  if (block != document.blocks.end()) return Inside(*block);
  const auto note = std::ranges::find_if(document.texts, &textblock::selected);
  return note != document.texts.end() ? Inside(*note) : SomePoint();
}

point wild_hand::Anywhere() {
  if (random_.OneIn(12)) {
    return {static_cast<std::int64_t>(random_.Below(9000)) - 4000,
            static_cast<std::int64_t>(random_.Below(9000)) - 4000};
  }
  return {static_cast<std::int64_t>(random_.Below(1920)),
          static_cast<std::int64_t>(random_.Below(1080))};
}

template <class record>
point wild_hand::Inside(const record& each) {
  const auto within = [this](std::int64_t size) {
    return static_cast<std::int64_t>(random_.Below(static_cast<std::size_t>(size) + 1));
  };
  return {each.x + within(each.width), each.y + within(each.height)};
}

}  // namespace mardel
