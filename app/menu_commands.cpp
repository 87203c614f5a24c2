#include "app/menu_commands.h"

#include <optional>

#include "app/about_box.h"
#include "app/configuration_dialog.h"
#include "app/file_commands.h"
#include "app/generation.h"
#include "editor/canvas_input.h"
#include "editor/edit_commands.h"
#include "editor/note_dialog.h"
#include "library/block_directory.h"

namespace mardel {
namespace {

void ToggleGrid(program& app) {
  const bool is_shown = app.grid_lines == grid::kHidden;
  app.grid_lines = is_shown ? grid::kShown : grid::kHidden;
  app.outside.desk.CheckMenuItem(app.ids.show_grid, is_shown);
  app.outside.desk.Redraw();
}

struct command {
  int menu_ids::* id;
  void (*run)(program& app);
};

constexpr command kCommands[] = {
    {&menu_ids::new_design, New},
    {&menu_ids::open, Open},
    {&menu_ids::save, Save},
    {&menu_ids::save_as, SaveAs},
    {&menu_ids::generate, [](program& app) { Generate(app, std::nullopt); }},
    {&menu_ids::preferences, OpenConfiguration},
    {&menu_ids::quit, [](program& app) { app.quit = true; }},
    {&menu_ids::show_grid, ToggleGrid},
    {&menu_ids::add_text, [](program& app) { OpenAddNote(app.work); }},
    {&menu_ids::undo, [](program& app) { Undo(app.work); }},
    {&menu_ids::block_directory,
     [](program& app) { OpenBlockDirectory(app.libraries, app.work.windows); }},
    {&menu_ids::about, OpenAbout},
    {&menu_ids::escape, [](program& app) { ResetInteraction(app.work); }},
};

}  // namespace

void RunMenuCommand(program& app, int id) {
  ResetInteraction(app.work);
  app.outside.desk.Redraw();
  for (const command& each : kCommands) {
    if (app.ids.*each.id == id) return each.run(app);
  }
  const int location = id - app.ids.first_location;
  if (location >= 0 && location < kProgramLocations) return Generate(app, location);
  if (id < app.ids.first_library_id || id > app.ids.last_library_id) return;
  const blockdef* definition = app.libraries.FindDefinition(id);
  if (definition != nullptr) PlaceBlock(app.work, *definition);
}

}  // namespace mardel
