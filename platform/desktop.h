// The window system: one main window with a menu bar, a scrolling canvas and a status bar.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/canvas_part.h"
#include "platform/event.h"
#include "platform/menu.h"
#include "platform/painter.h"
#include "platform/process.h"
#include "platform/ui.h"

namespace mardel {

struct main_window {
  std::string title;
  int width = 0, height = 0;  // at the start, without the frame
  int least_width = 0, least_height = 0;
  int most_width = 0, most_height = 0;
  int canvas_width = 0, canvas_height = 0;
  int scroll_step = 0;                   // pixels
  std::vector<int> status_field_widths;  // pixels; 0 takes the rest of the window
  std::function<void(painter&)> draw_canvas;
  std::function<std::vector<canvas_part>()> list_canvas;  // asked when a screen reader is there
  std::string_view icon = {};                             // PNG bytes
};

// How unsaved work is kept. All three only read it: they are called between two events, but also
// behind a message box or a requester.
struct work_keeper {
  std::function<bool()> is_due;    // asked after each event
  std::function<void()> keep;      // half a second later, and again for as long as it is due
  std::function<void()> keep_now;  // before the system ends the program, or takes its display away
};

class desktop : public ui {
 public:
  virtual const text_metrics& Metrics() const = 0;
  virtual void OpenMainWindow(const main_window& contents) = 0;
  virtual void SetMenuBar(const std::vector<menu>& menus) = 0;
  // A key of the main window that is no menu item's shortcut, such as "Escape".
  virtual void AddShortcut(const std::string& key, int id) = 0;
  // Runs tools while the windows stay alive; must not outlive the desktop.
  virtual std::unique_ptr<process_runner> ToolRunner() = 0;
  // From Run on.
  virtual void KeepWork(work_keeper keeper) = 0;
  // Hands each event to `handle` until it returns false; returns the process's exit code.
  virtual int Run(const std::function<bool(const event&)>& handle) = 0;
};

// Null when the desktop can't be reached (no display) or a limit is too low, as a line on standard
// error says. `arguments` are those of main, which the toolkit's own options are taken from.
std::unique_ptr<desktop> StartDesktop(int& argument_count, char** arguments);

// Measures without fonts or a display, for work whose results no picture shows.
std::unique_ptr<text_metrics> FixedTextMetrics();

}  // namespace mardel
