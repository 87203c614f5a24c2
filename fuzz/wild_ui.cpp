#include "fuzz/wild_ui.h"

#include <algorithm>
#include <stdexcept>

namespace mardel {

int wild_ui::ModalWindow() const {
  const auto found = std::ranges::find_if(open_windows, [](const auto& each) {
    return each.second.modality == window_modality::kModal;
  });
  return found == open_windows.end() ? 0 : found->first;
}

answer wild_ui::ShowMessage(const message& shown) {
  ++last.messages;
  if (shown.buttons == message_buttons::kOk) return answer::kOk;
  return random_.OneIn(3) ? answer::kYes : answer::kNo;
}

std::string wild_ui::AskOpenFile(const file_request& /*request*/) {
  last.path = random_.SomeOf(paths);
  return last.path;
}

std::string wild_ui::AskSaveFile(const file_request& request) {
  return AskOpenFile(request);
}

void wild_ui::Redraw() {
  last.is_redrawn = true;
  over = {};
}

int wild_ui::OpenWindow(const window& contents) {
  if (contents.modality == window_modality::kModal) {
    if (ModalWindow() != 0) complaints.push_back("two modal windows, then " + contents.title);
    if (is_main_enabled) complaints.push_back("main window enabled under " + contents.title);
  }
  open_windows.emplace(++newest_window, contents);
  all_windows_.emplace(newest_window, contents);
  return newest_window;
}

void wild_ui::CloseWindow(int number) {
  if (open_windows.erase(number) == 0) {
    complaints.push_back("closes window " + std::to_string(number) + ", which is not open");
  }
}

std::string wild_ui::GadgetText(int number, int gadget_id) const {
  const auto found = typed_.find({number, gadget_id});
  return found != typed_.end() ? found->second : Find(number, gadget_id).text;
}

void wild_ui::SetGadgetText(int number, int gadget_id, const std::string& text) {
  if (!open_windows.contains(number)) complaints.emplace_back("text for a closed window");
  Type(number, gadget_id, text);
}

bool wild_ui::GadgetChecked(int number, int gadget_id) const {
  const auto found = checked_.find({number, gadget_id});
  return found != checked_.end() ? found->second : Find(number, gadget_id).checked;
}

int wild_ui::SelectedTreeItem(int number, int gadget_id) const {
  return static_cast<int>(random_.Below(Find(number, gadget_id).items.size() + 1)) - 1;
}

void wild_ui::DisableMainWindow() {
  if (!is_main_enabled) complaints.emplace_back("main window disabled twice");
  is_main_enabled = false;
}

void wild_ui::EnableMainWindow() {
  if (is_main_enabled) complaints.emplace_back("main window enabled twice");
  is_main_enabled = true;
}

const gadget& wild_ui::Find(int number, int gadget_id) const {
  for (const gadget& each : all_windows_.at(number).gadgets) {
    if (each.id == gadget_id) return each;
  }
  throw std::out_of_range("no gadget " + std::to_string(gadget_id));
}

}  // namespace mardel
