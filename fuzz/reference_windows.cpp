#include <algorithm>
#include <string_view>

#include "fuzz/reference.h"

namespace mardel {
namespace {

constexpr colour kPalette[] = {Rgba(230, 25, 75),   Rgba(60, 180, 75),   Rgba(255, 225, 25),
                               Rgba(67, 99, 216),   Rgba(245, 130, 49),  Rgba(66, 212, 244),
                               Rgba(240, 50, 230),  Rgba(250, 190, 212), Rgba(70, 153, 144),
                               Rgba(220, 190, 255), Rgba(154, 99, 36),   Rgba(255, 250, 200),
                               Rgba(128, 0, 0),     Rgba(170, 255, 195), Rgba(0, 0, 117)};

constexpr int kOk = 1, kCancel = 2, kThird = 3, kFirstRow = 10;
constexpr int kConfigurationOk = 8, kConfigurationCancel = 9;

bool HasText(const std::string& typed) {
  return std::ranges::any_of(typed, [](char c) { return c != '\r' && c != '\n'; });
}

}  // namespace

void reference::OpenDialog(const std::string& title, std::int64_t subject) {
  modal_title = title;
  modal_ = desk_.newest_window;
  subject_ = subject;
}

void reference::OpenPinDialog(const end& on) {
  rows_.clear();
  for (net& wire : now.nets) {
    if ((wire.id_1 != on.id || wire.pin_1_name != on.on.pin_name) &&
        (wire.id_2 != on.id || wire.pin_2_name != on.on.pin_name)) {
      continue;
    }
    wire.color = kPalette[rows_.size() % std::size(kPalette)];
    wire.selected = true;
    rows_.push_back(wire.net_id);
  }
  OpenDialog("Pin Info and Nets", on.id);
}

void reference::UseGadget(const gadget_used& used) {
  if (used.window != modal_) return;
  if (modal_title == "About Mardel") return CloseDialog();
  const bool is_configuration = modal_title == "Configuration";
  if (used.gadget == (is_configuration ? kConfigurationOk : kOk)) return Confirm(used.window);
  if (used.gadget == (is_configuration ? kConfigurationCancel : kCancel)) CloseDialog();
}

void reference::Confirm(int window) {
  if (modal_title == "Configuration") return ConfirmConfiguration(window);
  if (modal_title == "Add Text Item") ConfirmNote(window, true);
  if (modal_title == "Edit Text Item") ConfirmNote(window, false);
  if (modal_title == "Device Info and Parameters") ConfirmDevice(window);
  if (modal_title == "Pin Info and Nets") ConfirmPin(window);
  CloseDialog();
  unsaved = true;
}

void reference::ConfirmNote(int window, bool is_new) {
  const std::string typed = desk_.GadgetText(window, kThird);
  if (is_new && !HasText(typed)) return;
  Remember();
  if (is_new) now.notes.push_back({.id = next_note_id++, .text_str = "", .x = 10, .y = 10});
  if (!HasText(typed)) {
    now.notes.pop_back();
    return;
  }
  textblock& note = now.notes.back();
  note.text_str = typed;
  note.selected = false;
  Measure(note);
}

void reference::ConfirmDevice(int window) {
  Remember();
  if (desk_.GadgetChecked(window, kThird)) return DeleteBlock(subject_);
  dvblock& block = now.blocks.back();
  for (std::size_t row = 0; row < block.params.size(); ++row) {
    const std::string typed = desk_.GadgetText(window, kFirstRow + static_cast<int>(row));
    for (param& each : block.params) {
      if (each.param_name == block.params[row].param_name) each.param_value = typed;
    }
  }
}

void reference::ConfirmPin(int window) {
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    if (!desk_.GadgetChecked(window, kFirstRow + static_cast<int>(row))) continue;
    Remember();
    std::erase_if(now.nets, [&](const net& wire) { return wire.net_id == rows_[row]; });
  }
}

void reference::ConfirmConfiguration(int window) {
  constexpr int kRun = 4, kPreprocess = 5;
  run_option_ = desk_.GadgetChecked(window, kRun)          ? 0
                : desk_.GadgetChecked(window, kPreprocess) ? 1
                                                           : 2;
  was_configured = true;
  CloseDialog();
}

void reference::CloseDialog() {
  modal_title.clear();
  modal_ = 0;
  for (net& wire : now.nets) {
    wire.color = net().color;
    wire.selected = false;
  }
}

// A byte is 8 wide, a line 18 high, and blanks at a line's end do not show.
void reference::Measure(textblock& note) const {
  note.width = 0;
  std::int64_t lines = 1, visible = 0, bytes = 0;
  for (const char c : note.text_str) {
    if (c == '\n') {
      ++lines;
      visible = bytes = 0;
      continue;
    }
    ++bytes;
    if (c != ' ') visible = bytes;
    note.width = std::max(note.width, 8 * visible);
  }
  note.width += 3;
  note.height = std::min<std::int64_t>(18 * lines, 999);
}

}  // namespace mardel
