#include "editor/device_dialog.h"

#include "editor/deletion.h"
#include "editor/dialog_parts.h"

namespace mardel {
namespace {

constexpr int kDeleteGadget = 3;

void AddRows(std::vector<gadget>& gadgets, const std::vector<param>& params) {
  int row = 0;
  for (const param& each : params) {
    const std::int64_t y = 120 + 20 * std::int64_t{row};
    gadgets.push_back(Caption({120, y, 70, 20}, each.param_name + ":"));
    gadgets.push_back({.id = kFirstRowGadget + row++,
                       .kind = gadget_kind::kTextField,
                       .place = {200, y, 100, 20},
                       .text = each.param_value});
  }
}

// The last row of a name decides for all parameters of that name.
void SetParams(dvblock& block, const workspace& work, const ui& desk) {
  int row = kFirstRowGadget;
  for (const param& named : block.params) {
    const std::string typed = desk.GadgetText(work.dialog.number, row++);
    for (param& each : block.params) {
      if (each.param_name == named.param_name) each.param_value = typed;
    }
  }
}

}  // namespace

window DeviceWindow(const dvblock& block) {
  const int rows_height = 20 * static_cast<int>(block.params.size());
  window shown = {"Device Info and Parameters", 440, rows_height + 260, {}};
  shown.gadgets = {
      {.id = kDeleteGadget,
       .kind = gadget_kind::kCheckBox,
       .place = {100, 30, 220, 25},
       .text = "Check this box to delete the device"},
      Caption({140, 60, 50, 20}, "Device#: "),
      Label({200, 60, 200, 20}, std::to_string(block.id)),
      Caption({140, 80, 50, 20}, "Library: "),
      Label({200, 80, 200, 20}, block.lib),
      Caption({150, 100, 40, 20}, "Sub: "),
      Label({200, 100, 200, 25}, block.sub),
  };
  AddRows(shown.gadgets, block.params);
  shown.gadgets.push_back(OkButton(100, 150 + rows_height));
  shown.gadgets.push_back(CancelButton(230, 150 + rows_height));
  return shown;
}

void ApplyDevice(workspace& work, const surroundings& outside) {
  dvblock* block = TopmostOf(work.document.blocks, work.dialog.subject);
  if (block == nullptr) return;
  if (outside.desk.GadgetChecked(work.dialog.number, kDeleteGadget)) {
    DeleteBlock(work.document, work.undo, block->id, recording::kOn);
    CloseGroup(work.undo);
    outside.desk.Redraw();
    return;
  }
  PushBlock(work.undo, *block, undo_action::kBlockChanged);
  CloseGroup(work.undo);
  SetParams(*block, work, outside.desk);
}

}  // namespace mardel
