#include "app/event_handling.h"

#include "app/clipboard_commands.h"
#include "app/file_commands.h"
#include "app/guard.h"
#include "app/menu_commands.h"
#include "editor/canvas_input.h"

namespace mardel {
namespace {

bool MayQuit(program& app) {
  if (!app.quit) return false;
  app.quit = MayLoseChanges(app.work.document, guarded_command::kQuit, app.outside.desk);
  return app.quit;
}

// One overload for each kind of event.
struct event_handler {
  program& app;

  void operator()(const menu_chosen& chosen) const { RunMenuCommand(app, chosen.id); }
  void operator()(const canvas_mouse& mouse) const { HandleMouse(app.work, mouse); }
  void operator()(const canvas_wheel& wheel) const { HandleWheel(app.outside.desk, wheel); }
  void operator()(const canvas_key& key) const { HandleKey(app.work, key); }
  void operator()(const canvas_arrow& arrow) const { HandleArrow(app.work, arrow); }
  void operator()(const canvas_shortcut& shortcut) const { RunShortcut(app, shortcut.what); }
  void operator()(const files_dropped& dropped) const { OpenDropped(app, dropped.paths); }
  void operator()(const canvas_interrupted& /*lost*/) const { HandleInterruption(app.work); }
  void operator()(const gadget_used& used) const { app.work.windows.Use(used); }
  void operator()(const window_close_requested& close) const {
    app.work.windows.RequestClose(close);
  }
  void operator()(const main_window_resized& /*resized*/) const { app.outside.desk.Redraw(); }
  void operator()(const main_window_close_requested& /*close*/) const { app.quit = true; }
};

}  // namespace

bool HandleEvent(program& app, const event& happened) {
  std::visit(event_handler{app}, happened);
  return !MayQuit(app);
}

}  // namespace mardel
