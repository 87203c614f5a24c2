#include "app/event_handling.h"

#include <algorithm>

#include "app/about_box.h"
#include "app/configuration_dialog.h"
#include "app/guard.h"
#include "app/menu_commands.h"
#include "editor/canvas_input.h"
#include "editor/dialogs.h"
#include "library/block_directory.h"

namespace mardel {
namespace {

bool IsDirectory(const program& app, int window) {
  return std::ranges::count(app.directory_windows, window) > 0;
}

void CloseDirectory(program& app, int window) {
  app.outside.desk.CloseWindow(window);
  std::erase(app.directory_windows, window);
}

bool MayQuit(program& app) {
  if (!app.quit) return false;
  app.quit = MayLoseChanges(app.work.document, guarded_command::kQuit, app.outside.desk);
  return app.quit;
}

// One overload for each kind of event.
struct event_handler {
  program& app;

  void operator()(const menu_chosen& chosen) const { RunMenuCommand(app, chosen.id); }
  void operator()(const canvas_mouse& mouse) const {
    HandleMouse(app.work, Surroundings(app), mouse);
  }
  void operator()(const canvas_wheel& wheel) const { HandleWheel(Surroundings(app), wheel); }
  void operator()(const canvas_key& key) const { HandleKey(app.work, Surroundings(app), key); }
  void operator()(const canvas_interrupted& /*lost*/) const {
    HandleInterruption(app.work, Surroundings(app));
  }
  void operator()(const gadget_used& used) const {
    if (used.window == app.configuration_window) {
      HandleConfigurationGadget(app, used);
    } else if (used.window == app.about_window) {
      CloseAbout(app);
    } else if (used.window == app.work.dialog.number) {
      HandleDialogGadget(app.work, Surroundings(app), used);
    } else if (IsDirectory(app, used.window)) {
      HandleDirectoryGadget(app.libraries, app.outside.desk, used);
    }
  }
  // kept: the about box stays open; its button is the only way out.
  void operator()(const window_close_requested& close) const {
    if (close.window == app.configuration_window) {
      CloseConfiguration(app);
    } else if (close.window == app.work.dialog.number) {
      CancelDialog(app.work, Surroundings(app));
    } else if (IsDirectory(app, close.window)) {
      CloseDirectory(app, close.window);
    }
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
