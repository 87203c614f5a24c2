#include "editor/device_dialog.h"

#include <string_view>
#include <unordered_map>

#include "editor/deletion.h"
#include "editor/dialog_parts.h"
#include "platform/hash.h"

namespace mardel {
namespace {

constexpr int kDeleteGadget = 3;

void AddRows(std::vector<gadget>& gadgets, const std::vector<param>& params) {
  int row = 0;
  for (const param& each : params) {
    const std::int64_t y = 120 + 20 * std::int64_t{row};
    gadgets.push_back(Caption({120, y, 70, 20}, each.param_name + ":"));
    gadgets.back().tooltip = each.param_desc;
    gadgets.push_back({.id = kFirstRowGadget + row++,
                       .kind = gadget_kind::kTextField,
                       .place = {200, y, 100, 20},
                       .text = each.param_value,
                       .tooltip = each.param_desc});
  }
}

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

// The last row of a name decides for all parameters of that name.
void SetParams(dvblock& block, const secondary_windows& desk, int number) {
  std::unordered_map<std::string_view, int, text_hash> rows;
  int row = kFirstRowGadget;
  for (const param& named : block.params) rows[named.param_name] = row++;
  for (param& each : block.params) {
    each.param_value = desk.GadgetText(number, rows.at(each.param_name));
  }
}

void ApplyDevice(workspace& work, std::int64_t id, int number) {
  dvblock* block = TopmostOf(work.document.blocks, id);
  if (block == nullptr) return;
  const secondary_windows& desk = work.windows.Desk();
  if (desk.GadgetChecked(number, kDeleteGadget)) {
    DeleteBlock(work.document, work.undo, id, recording::kOn);
    CloseGroup(work.undo);
    return work.canvas.Redraw();
  }
  Push(work.undo, *block, block_action::kChanged);
  CloseGroup(work.undo);
  SetParams(*block, desk, number);
}

}  // namespace

void OpenDeviceDialog(workspace& work, const dvblock& block) {
  OpenDialog(work, DeviceWindow(block),
             {.apply = [&work, id = block.id](int number) { ApplyDevice(work, id, number); }});
}

}  // namespace mardel
