#include "app/clipboard_commands.h"

#include <utility>

#include "app/file_commands.h"
#include "editor/canvas_input.h"
#include "editor/copy_paste.h"
#include "editor/selection.h"

namespace mardel {
namespace {

void Say(const program& app, const std::string& text) {
  app.work.canvas.SetStatus(1, text);
}

void Copy(const program& app) {
  if (!app.work.document.has_selection) return Say(app, "Nothing is selected");
  Say(app, "");
  app.outside.desk.SetClipboardText(DesignText(CopyOfSelection(app.work.document)));
}

void Cut(program& app) {
  Copy(app);
  DeleteSelection(app.work);
}

void Paste(program& app) {
  loaded_design loaded = LoadDesignText(app.outside.desk.ClipboardText(), LoadContext(app));
  if (loaded.status != load_status::kLoaded) {
    return Say(app, "Not pasted: the clipboard holds no design");
  }
  if (!loaded.reports.empty()) {
    return Say(app, "Not pasted: the libraries lack " + std::to_string(loaded.reports.size()) +
                        " of its blocks");
  }
  Say(app, "");
  PasteDesign(app.work, std::move(loaded.document));
}

}  // namespace

void RunShortcut(program& app, edit_shortcut shortcut) {
  if (IsDragging(app.work.hand)) return;
  app.work.hand = resting{};
  switch (shortcut) {
    case edit_shortcut::kSelectAll:
      SelectAll(app.work.document);
      return app.work.canvas.Redraw();
    case edit_shortcut::kCut:
      return Cut(app);
    case edit_shortcut::kCopy:
      return Copy(app);
    case edit_shortcut::kPaste:
      return Paste(app);
  }
}

}  // namespace mardel
