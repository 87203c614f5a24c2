// What the windows of the editor have in common.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>

#include "editor/cursor_list.h"
#include "editor/workspace.h"
#include "platform/ui.h"

namespace mardel {

constexpr int kOkGadget = 1;
constexpr int kCancelGadget = 2;
constexpr int kFirstRowGadget = 10;  // the rows of a window count on from here

inline gadget Label(const rectangle& place, std::string text) {
  return {.kind = gadget_kind::kLabel, .place = place, .text = std::move(text)};
}

// Ends just before the value beside it.
inline gadget Caption(const rectangle& place, std::string text) {
  return {.kind = gadget_kind::kRightLabel, .place = place, .text = std::move(text)};
}

inline gadget OkButton(std::int64_t x, std::int64_t y) {
  return {
      .id = kOkGadget, .kind = gadget_kind::kDefaultButton, .place = {x, y, 100, 25}, .text = "OK"};
}

inline gadget CancelButton(std::int64_t x, std::int64_t y) {
  return {.id = kCancelGadget,
          .kind = gadget_kind::kButton,
          .place = {x, y, 100, 25},
          .text = "Cancel"};
}

// The record on top where ids repeat, as it is the one that was clicked; null when there is none.
template <class record>
record* TopmostOf(cursor_list<record>& list, std::int64_t id) {
  for (auto each = list.rbegin(); each != list.rend(); ++each) {
    if (each->id == id) return &*each;
  }
  return nullptr;
}

// What a window with OK and Cancel does; closing it is Cancel.
struct dialog_steps {
  std::function<void(int window)> apply;  // on OK, while the window is open
  std::function<void()> after_ok = [] {};
  std::function<void()> after_cancel = [] {};
};

void OpenDialog(workspace& work, const window& contents, const dialog_steps& steps);

}  // namespace mardel
