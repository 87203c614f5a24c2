// A desktop with a wild person in front of it: every question gets a random answer. It remembers
// what one event led to, and complains about calls that a desktop could not follow.
#pragma once

#include <map>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "platform/ui.h"

namespace mardel {

// What is random here is the same on every host.
class dice {
 public:
  explicit dice(unsigned seed) : numbers_(seed) {}
  std::size_t Below(std::size_t limit) { return numbers_() % limit; }
  bool OneIn(std::size_t count) { return Below(count) == 0; }
  template <class value>
  const value& SomeOf(const std::vector<value>& choices) {
    return choices[Below(choices.size())];
  }

 private:
  std::mt19937 numbers_;
};

class wild_ui : public ui {
 public:
  explicit wild_ui(dice& random) : random_(random) {}

  // What requesters are answered from; "" cancels.
  std::vector<std::string> paths;

  // Since the last event.
  struct happenings {
    int messages = 0;
    std::string path;  // that a requester was answered by
    bool is_redrawn = false;
  };
  happenings last;

  // What is to be seen.
  std::string status[4];
  pointer_shape pointer = pointer_shape::kNormal;
  overlay over;
  std::map<int, window> open_windows;
  int newest_window = 0;
  bool is_main_enabled = true;

  std::vector<std::string> complaints;

  // 0 when there is none.
  int ModalWindow() const;
  void Type(int number, int gadget_id, const std::string& text) {
    typed_[{number, gadget_id}] = text;
  }
  void Check(int number, int gadget_id, bool is_checked) {
    checked_[{number, gadget_id}] = is_checked;
  }

  answer ShowMessage(const message& shown) override;
  std::string AskOpenFile(const file_request& request) override;
  std::string AskSaveFile(const file_request& request) override;
  void SetTitle(const std::string& /*shown*/) override {}
  void SetStatus(int field, const std::string& text) override { status[field] = text; }
  void SetPointer(pointer_shape shape) override { pointer = shape; }
  void Redraw() override;
  void ShowOverlay(const overlay& shape) override { over = shape; }
  void ScrollBy(point /*pixels*/) override {}
  void ScrollTo(const rectangle& /*place*/) override {}
  std::string ClipboardText() const override { return clipboard_; }
  void SetClipboardText(const std::string& text) override { clipboard_ = text; }
  void CheckMenuItem(int /*id*/, bool /*checked*/) override {}
  int OpenWindow(const window& contents) override;
  void CloseWindow(int number) override;
  // Also of windows that were closed.
  std::string GadgetText(int number, int gadget_id) const override;
  void SetGadgetText(int number, int gadget_id, const std::string& text) override;
  bool GadgetChecked(int number, int gadget_id) const override;
  int SelectedTreeItem(int number, int gadget_id) const override;
  void DisableMainWindow() override;
  void EnableMainWindow() override;

 private:
  const gadget& Find(int number, int gadget_id) const;

  dice& random_;
  std::string clipboard_;
  std::map<int, window> all_windows_;
  std::map<std::pair<int, int>, std::string> typed_;  // by window and gadget
  std::map<std::pair<int, int>, bool> checked_;
};

}  // namespace mardel
