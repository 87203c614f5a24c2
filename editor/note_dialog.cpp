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

std::string TypedText(const workspace& work, const surroundings& outside) {
  return outside.desk.GadgetText(work.dialog.number, kEditorGadget);
}

bool HasText(const std::string& typed) {
  return typed.find_first_not_of("\r\n") != std::string::npos;
}

}  // namespace

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

void AddTypedNote(workspace& work, const surroundings& outside) {
  std::string typed = TypedText(work, outside);
  if (!HasText(typed)) return;
  design& document = work.document;
  textblock& note = document.texts.Append(
      {.id = document.next_text_id++, .text_str = std::move(typed), .x = 10, .y = 10});
  MeasureNote(note, outside.metrics);
  PushNote(work.undo, note, undo_action::kNoteAdded);
  CloseGroup(work.undo);
}

void ApplyTypedNote(workspace& work, const surroundings& outside) {
  textblock* note = TopmostOf(work.document.texts, work.dialog.subject);
  if (note == nullptr) return;
  std::string typed = TypedText(work, outside);
  if (HasText(typed)) {
    PushNote(work.undo, *note, undo_action::kNoteEdited);
    note->selected = false;
    note->text_str = std::move(typed);
    MeasureNote(*note, outside.metrics);
  } else {
    DeleteNote(work.document, work.undo, note->id, recording::kOn);
  }
  CloseGroup(work.undo);
}

}  // namespace mardel
