#include "app/file_commands.h"

#include "app/guard.h"
#include "app/history.h"
#include "app/reports.h"
#include "app/title.h"
#include "codegen/design_file.h"
#include "codegen/value_fate.h"
#include "editor/canvas_input.h"
#include "platform/files.h"
#include "platform/host.h"
#include "platform/path.h"

namespace mardel {
namespace {

constexpr const char* kPatterns =
    "Mardel file (*.mrd)|*.mrd|Text (*.txt)|*.txt|All files (*.*)|*.*";

void ClearDesignAndUndo(program& app) {
  ClearDesign(app.work.document);
  app.work.undo.records.clear();
  app.copy.GiveUp();
  app.work.document.unsaved_changes = false;
  app.outside.desk.Redraw();
  app.outside.desk.ScrollTo({0, 0, 1, 1});
}

void ShowFileName(const program& app) {
  app.outside.desk.SetTitle(Title(app.work.document.file_name));
}

void ShowSaved(const program& app, const std::string& path) {
  const std::string breaking = ValueThatBreaksFile(app.work.document);
  app.outside.desk.SetStatus(
      1, "Saved " + std::string(FileName(path)) +
             (breaking.empty() ? "" : ", but " + breaking + " makes the file unreadable"));
}

// False when the old file was kept; the design then still counts as unsaved. kept: a file that
// can't be created is silent and counts as saved.
bool Write(program& app, const std::string& path) {
  KeepVersion(app.outside.state_folder, path);
  const write_status status = SaveDesign(app.work.document, path);
  if (status == write_status::kWritten) {
    app.copy.Remove();
    ShowSaved(app, path);
  } else if (status == write_status::kNotCreated) {
    app.copy.KeepAsOnlyOne(app.work);
  }
  if (!IsFault(status)) return true;
  app.outside.desk.ShowMessage({.title = "Error Saving Design",
                                .text = "Design named " + path + " could not be saved, " +
                                        std::string(FateOfOldFile(status))});
  return false;
}

// The chosen path, with the design written there; "" when the requester was cancelled or the old
// file was kept.
std::string AskSaveFileName(program& app, const std::string& directory) {
  std::string path = app.outside.desk.AskSaveFile(
      {.title = "Please choose file to save", .start = directory + "*.mrd", .patterns = kPatterns});
  return path.empty() || Write(app, path) ? path : std::string();
}

}  // namespace

void New(program& app) {
  if (!MayLoseChanges(app.work.document, guarded_command::kNew, app.outside.desk)) return;
  ClearDesignAndUndo(app);
  app.work.document.file_name.clear();
  ShowFileName(app);
}

void Open(program& app) {
  if (!MayLoseChanges(app.work.document, guarded_command::kOpen, app.outside.desk)) return;
  ClearDesignAndUndo(app);
  const std::string path = app.outside.desk.AskOpenFile({.title = "Please choose file to open",
                                                         .start = app.options.files_path + "*.mrd",
                                                         .patterns = kPatterns});
  if (!path.empty()) OpenFile(app, path);
}

void OpenFile(program& app, const std::string& path) {
  loaded_design loaded = LoadDesign(path, LoadContext(app));
  app.work.document = std::move(loaded.document);
  const bool is_loaded = loaded.status == load_status::kLoaded;
  if (is_loaded) ShowFileName(app);
  ShowReports(app.outside.desk, loaded.reports);
  if (!is_loaded) ShowFileName(app);
  app.outside.desk.Redraw();
}

void OpenDropped(program& app, const std::vector<std::string>& paths) {
  ResetInteraction(app.work);
  app.outside.desk.Redraw();
  const bool is_design =
      paths.size() == 1 && paths.front().ends_with(kDesignSuffix) && IsRegularFile(paths.front());
  if (!is_design)
    return app.outside.desk.SetStatus(1, "Only one design file (.mrd) can be dropped");
  if (!MayLoseChanges(app.work.document, guarded_command::kOpen, app.outside.desk)) return;
  ClearDesignAndUndo(app);
  OpenFile(app, paths.front());
}

load_context LoadContext(const program& app) {
  return {.libraries = app.libraries,
          .metrics = app.outside.metrics,
          .line_separator = LineSeparator(HostKind())};
}

void Save(program& app) {
  design& document = app.work.document;
  if (document.file_name.empty()) {
    SaveAs(app);
  } else if (Write(app, document.file_name)) {
    document.unsaved_changes = false;
  }
}

void SaveAs(program& app) {
  const std::string path = AskSaveFileName(app, app.options.files_path);
  if (path.empty()) return;
  app.work.document.unsaved_changes = false;
  app.work.document.file_name = path;
  ShowFileName(app);
}

}  // namespace mardel
