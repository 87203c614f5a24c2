#include "editor/dialogs.h"

#include <algorithm>

#include "editor/device_dialog.h"
#include "editor/dialog_parts.h"
#include "editor/note_dialog.h"
#include "editor/pin_dialog.h"
#include "editor/wiring.h"

namespace mardel {
namespace {

using dialog_handler = void (*)(workspace& work, const surroundings& outside);

void DoNothing(workspace& /*work*/, const surroundings& /*outside*/) {}

void Redraw(workspace& /*work*/, const surroundings& outside) {
  outside.desk.Redraw();
}

void EndHighlight(workspace& work, const surroundings& outside) {
  ResetNets(work.document);
  outside.desk.Redraw();
}

struct dialog_steps {
  dialog_kind kind;
  dialog_handler apply;  // on OK, while the window is open
  dialog_handler after_ok, after_cancel;
};

constexpr dialog_steps kDialogs[] = {
    {dialog_kind::kAddNote, AddTypedNote, Redraw, DoNothing},
    {dialog_kind::kEditNote, ApplyTypedNote, Redraw, DoNothing},
    {dialog_kind::kDevice, ApplyDevice, DoNothing, DoNothing},
    {dialog_kind::kPin, DeleteCheckedNets, EndHighlight, EndHighlight},
};

const dialog_steps& StepsOf(dialog_kind kind) {
  return *std::ranges::find(kDialogs, kind, &dialog_steps::kind);
}

void Open(workspace& work, const surroundings& outside, open_dialog opened,
          const window& contents) {
  outside.desk.DisableMainWindow();
  opened.number = outside.desk.OpenWindow(contents);
  work.dialog = opened;
}

void Close(workspace& work, const surroundings& outside) {
  outside.desk.CloseWindow(work.dialog.number);
  work.dialog = {};
  outside.desk.EnableMainWindow();
}

// kept: the design counts as changed even when nothing was typed or checked.
void Confirm(workspace& work, const surroundings& outside) {
  const dialog_steps& steps = StepsOf(work.dialog.kind);
  steps.apply(work, outside);
  Close(work, outside);
  work.document.unsaved_changes = true;
  steps.after_ok(work, outside);
}

}  // namespace

void OpenAddNote(workspace& work, const surroundings& outside) {
  Open(work, outside, {.kind = dialog_kind::kAddNote}, AddNoteWindow());
}

void OpenEditNote(workspace& work, const surroundings& outside, const textblock& note) {
  Open(work, outside, {.kind = dialog_kind::kEditNote, .subject = note.id}, EditNoteWindow(note));
}

void OpenDeviceDialog(workspace& work, const surroundings& outside, const dvblock& block) {
  Open(work, outside, {.kind = dialog_kind::kDevice, .subject = block.id}, DeviceWindow(block));
}

void OpenPinDialog(workspace& work, const surroundings& outside, const pin_hit& hit) {
  HighlightNets(work.document, hit);
  outside.desk.Redraw();
  Open(work, outside, {.kind = dialog_kind::kPin, .subject = hit.id},
       PinWindow(work.document, hit));
}

void HandleDialogGadget(workspace& work, const surroundings& outside, const gadget_used& used) {
  if (used.gadget == kOkGadget) Confirm(work, outside);
  if (used.gadget == kCancelGadget) CancelDialog(work, outside);
}

void CancelDialog(workspace& work, const surroundings& outside) {
  const dialog_steps& steps = StepsOf(work.dialog.kind);
  Close(work, outside);
  steps.after_cancel(work, outside);
}

}  // namespace mardel
