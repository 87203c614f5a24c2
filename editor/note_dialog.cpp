#include "editor/note_dialog.h"

#include <utility>

#include "editor/deletion.h"
#include "editor/dialog_parts.h"

namespace mardel {
namespace {

constexpr int kEditorGadget = 3;

gadget Editor(std::string text) {
  return {.id = kEditorGadget,
          .kind = gadget_kind::kEditor,
          .place = {20, 10, 490, 100},
          .text = std::move(text)};
}

bool HasText(const std::string& typed) {
  return typed.find_first_not_of("\r\n") != std::string::npos;
}

window AddNoteWindow() {
  return {"Add Text Item", 530, 175, {Editor(""), OkButton(120, 145), CancelButton(330, 145)}};
}

window EditNoteWindow(const textblock& note) {
  return {"Edit Text Item",
          530,
          175,
          {Editor(note.text_str),
           Label({20, 120, 490, 25}, "Clear text and press OK To delete text block"),
           OkButton(120, 145), CancelButton(330, 145)}};
}

// Nothing but line breaks is no text.
void AddNote(workspace& work, std::string typed) {
  if (!HasText(typed)) return;
  design& document = work.document;
  textblock& note = document.texts.Append(
      {.id = document.next_text_id++, .text_str = std::move(typed), .x = 10, .y = 10});
  MeasureNote(note, work.metrics);
  Push(work.undo, note, note_action::kAdded);
  CloseGroup(work.undo);
  work.canvas.ScrollTo({note.x, note.y, note.width, note.height});
}

// No text deletes the note.
void EditNote(workspace& work, std::int64_t id, std::string typed) {
  textblock* note = TopmostOf(work.document.texts, id);
  if (note == nullptr) return;
  if (HasText(typed)) {
    Push(work.undo, *note, note_action::kEdited);
    note->selected = false;
    note->text_str = std::move(typed);
    MeasureNote(*note, work.metrics);
  } else {
    DeleteNote(work.document, work.undo, note->id, recording::kOn);
  }
  CloseGroup(work.undo);
}

// `change` gets the text as typed.
void OpenNoteDialog(workspace& work, const window& contents,
                    const std::function<void(std::string typed)>& change) {
  OpenDialog(
      work, contents,
      {.apply = [&work, change](
                    int number) { change(work.windows.Desk().GadgetText(number, kEditorGadget)); },
       .after_ok = [&work] { work.canvas.Redraw(); }});
}

}  // namespace

void OpenAddNote(workspace& work) {
  OpenNoteDialog(work, AddNoteWindow(),
                 [&work](std::string typed) { AddNote(work, std::move(typed)); });
}

void OpenEditNote(workspace& work, const textblock& note) {
  OpenNoteDialog(work, EditNoteWindow(note), [&work, id = note.id](std::string typed) {
    EditNote(work, id, std::move(typed));
  });
}

}  // namespace mardel
