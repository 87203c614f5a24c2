#include "app/window.h"

#include <memory>

#include "app/event_handling.h"
#include "app/file_commands.h"
#include "app/headless.h"
#include "app/history.h"
#include "app/logo.h"
#include "app/recovery.h"
#include "app/reports.h"
#include "app/startup.h"
#include "app/title.h"
#include "editor/canvas_input.h"
#include "editor/canvas_parts.h"
#include "platform/path.h"
#include "platform/state_folder.h"

namespace mardel {
namespace {

// What dead programs left behind.
void ShowRecovered(program& app) {
  const std::string& folder = app.outside.state_folder;
  const std::string text = folder.empty()
                               ? "Unsaved changes are not kept: there is no home folder"
                               : RecoveryText(RecoverDesigns(folder, app.options.files_path));
  if (!text.empty()) app.outside.desk.SetStatus(1, text);
}

}  // namespace

main_window MainWindow(const program& app) {
  main_window contents{.title = Title(""),
                       .width = 800,
                       .height = 600,
                       .least_width = 200,
                       .least_height = 200,
                       .most_width = 1920,
                       .most_height = 1080,
                       .canvas_width = kCanvasWidth,
                       .canvas_height = kCanvasHeight,
                       .scroll_step = kScrollStep,
                       .status_field_widths = {90, 0, 100, 100},
                       .draw_canvas = {},
                       .list_canvas = [&app] { return CanvasParts(app.work.document); },
                       .icon = LogoPng()};
  contents.draw_canvas = [&app](painter& canvas) {
    DrawDesign(
        canvas, app.work.document,
        {.libraries = app.libraries, .metrics = app.outside.metrics, .lines = app.grid_lines});
  };
  return contents;
}

work_keeper Keeper(program& app) {
  return {.is_due = [&app] { return app.copy.IsDue(app.work); },
          .keep =
              [&app] {
                app.copy.Keep(app.work);
                if (!app.copy.TakeFailure()) return;
                app.outside.desk.SetStatus(1,
                                           "Unsaved changes are not kept: no file can be made in " +
                                               RecoveryFolder(app.outside.state_folder));
              },
          .keep_now = [&app] { app.copy.KeepNow(app.work); }};
}

int RunWindow(const std::string& design_path, const std::string& first_status, int& argument_count,
              char** arguments) {
  const std::unique_ptr<desktop> desk = StartDesktop(argument_count, arguments);
  if (desk == nullptr) return static_cast<int>(exit_status::kFileOrToolMissing);
  const std::unique_ptr<process_runner> runner = desk->ToolRunner();
  program app({*desk, desk->Metrics(), *runner, Now, StateFolder()});
  const host_facts host = ThisHost();
  ReadSettings(app, host);
  desk->OpenMainWindow(MainWindow(app));
  const std::vector<report> reports = FillLibraries(app);
  desk->SetMenuBar(MenuBar(host.kind, app.ids, app.libraries));
  desk->AddShortcut("Escape", app.ids.escape);
  ShowReports(*desk, reports);
  if (!design_path.empty()) OpenFile(app, AbsolutePath(design_path));
  if (!first_status.empty()) desk->SetStatus(1, first_status);
  ShowRecovered(app);
  desk->KeepWork(Keeper(app));
  const int code = desk->Run([&app](const event& happened) { return HandleEvent(app, happened); });
  app.copy.GiveUp();
  BoundHistory(app.outside.state_folder);
  return code;
}

}  // namespace mardel
