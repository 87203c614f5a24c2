// What the program asks of the person in front of it. The desktop answers with windows, the command
// line with standard error, a test with a script.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/geometry.h"
#include "platform/message.h"
#include "platform/painter.h"

namespace mardel {

struct file_request {
  std::string title;
  std::string start;     // folder joined to a file name or pattern that is proposed
  std::string patterns;  // "Name|pattern|Name|pattern"; the first is selected
};

enum class pointer_shape { kNormal, kCross };

// A shape painted over the canvas after a redraw; the next redraw removes it.
struct overlay {
  enum class shape { kNone, kRectangle, kLine };
  shape kind = shape::kNone;
  line span;  // opposite corners of the rectangle, in any order, or the ends of the line
  stroke pen;
};

enum class gadget_kind {
  kLabel,
  kCentredLabel,
  kRightLabel,
  kTextField,
  kEditor,
  kReadOnlyText,
  kCheckBox,
  kOption,  // all options of a window form one group
  kButton,
  kDefaultButton,
  kTree,
  kImage,
};

struct tree_item {
  int level = 0;  // 0, or 1 for a child of the nearest level-0 item above
  std::string text;
};

struct gadget {
  int id = 0;  // unique in the window; 0 for gadgets that nothing asks about
  gadget_kind kind = gadget_kind::kLabel;
  rectangle place;                    // in the window, pixels
  std::string text;                   // plain text; of an image: PNG bytes
  std::string tooltip = {};           // plain text
  bool checked = false;               // of a check box or an option
  colour ink = 0;                     // of a label's text; 0 is the desktop's own colour
  std::vector<tree_item> items = {};  // of a tree
};

enum class window_modality { kModal, kModeless };
// In a resizable window trees and texts take what the window grows by.
enum class window_sizing { kFixed, kResizable };

struct window {
  std::string title;
  int width = 0;
  int height = 0;
  std::vector<gadget> gadgets;  // in Tab order
  window_modality modality = window_modality::kModal;
  window_sizing sizing = window_sizing::kFixed;
  std::optional<rectangle> beside = {};  // what it should not cover, canvas pixels
};

class message_boxes {
 public:
  message_boxes() = default;
  message_boxes(const message_boxes&) = delete;
  message_boxes& operator=(const message_boxes&) = delete;
  virtual ~message_boxes() = default;

  // Waits for the answer. Closing the box answers No where there is a No and no Cancel.
  virtual answer ShowMessage(const message& shown) = 0;
};

// What the canvas and what the mouse does on it need.
class canvas_view {
 public:
  canvas_view() = default;
  canvas_view(const canvas_view&) = delete;
  canvas_view& operator=(const canvas_view&) = delete;
  virtual ~canvas_view() = default;

  // Fields 0 to 3.
  virtual void SetStatus(int field, const std::string& text) = 0;
  virtual void SetPointer(pointer_shape shape) = 0;
  // Paints the whole design anew, without an overlay, before the next event or message box.
  virtual void Redraw() = 0;
  virtual void ShowOverlay(const overlay& shape) = 0;
  // Adds to the position of the area that holds the canvas.
  virtual void ScrollBy(point pixels) = 0;
  // Scrolls as little as shows the place, above all its top-left corner.
  virtual void ScrollTo(const rectangle& place) = 0;
};

// What a secondary window needs.
class secondary_windows {
 public:
  secondary_windows() = default;
  secondary_windows(const secondary_windows&) = delete;
  secondary_windows& operator=(const secondary_windows&) = delete;
  virtual ~secondary_windows() = default;

  // Opens a secondary window and returns its number, never used before. A modal window's opener
  // disables the main window first.
  virtual int OpenWindow(const window& contents) = 0;
  virtual void CloseWindow(int number) = 0;
  // Of a text field or editor: its text, as it was set when it was not edited; else with line
  // breaks as "\n" and without characters that XML can't hold.
  virtual std::string GadgetText(int number, int gadget_id) const = 0;
  virtual void SetGadgetText(int number, int gadget_id, const std::string& text) = 0;
  virtual bool GadgetChecked(int number, int gadget_id) const = 0;
  // Index into the tree's items, or -1 when none is selected.
  virtual int SelectedTreeItem(int number, int gadget_id) const = 0;
  virtual void DisableMainWindow() = 0;
  // Enables the main window and brings it to the front.
  virtual void EnableMainWindow() = 0;
};

class ui : public message_boxes, public canvas_view, public secondary_windows {
 public:
  // The chosen path, or "" when the requester was cancelled.
  virtual std::string AskOpenFile(const file_request& request) = 0;
  virtual std::string AskSaveFile(const file_request& request) = 0;
  virtual void SetTitle(const std::string& title) = 0;
  virtual void CheckMenuItem(int id, bool checked) = 0;
  // "" when the clipboard holds no text, or more than kMostFileBytes of it.
  virtual std::string ClipboardText() const = 0;
  virtual void SetClipboardText(const std::string& text) = 0;
};

}  // namespace mardel
