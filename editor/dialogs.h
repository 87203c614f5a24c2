// The modal windows of the editor: notes, a device's parameters, a pin's nets. Opening one disables
// the main window, closing it enables it again; none is opened while another one is open.
#pragma once

#include "editor/workspace.h"
#include "platform/event.h"

namespace mardel {

void OpenAddNote(workspace& work, const surroundings& outside);
void OpenEditNote(workspace& work, const surroundings& outside, const textblock& note);
void OpenDeviceDialog(workspace& work, const surroundings& outside, const dvblock& block);
// Highlights the nets of the pin until the window is closed.
void OpenPinDialog(workspace& work, const surroundings& outside, const pin_hit& hit);

// For events of work.dialog's window only.
void HandleDialogGadget(workspace& work, const surroundings& outside, const gadget_used& used);
void CancelDialog(workspace& work, const surroundings& outside);

}  // namespace mardel
