#include "editor/pin_dialog.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

#include "editor/deletion.h"
#include "editor/dialog_parts.h"
#include "editor/wiring.h"

namespace mardel {
namespace {

std::string SubOf(const design& document, std::int64_t block_id) {
  const dvblock* block = FindBlock(document, block_id);
  return block == nullptr ? "" : block->sub;
}

// By the ids of the blocks, the first of each.
using block_names = std::unordered_map<std::int64_t, std::string_view, id_hash>;

gadget DeletionBox(const block_names& subs, const net& wire, int row, std::int64_t y) {
  const auto sub_of = [&subs](std::int64_t id) {
    const auto found = subs.find(id);
    return std::string(found == subs.end() ? std::string_view() : found->second);
  };
  return {.id = kFirstRowGadget + row,
          .kind = gadget_kind::kCheckBox,
          .place = {50, y, 325, 25},
          .text = "Delete net: " + sub_of(wire.id_1) + ":" + wire.pin_1_name + " to " +
                  sub_of(wire.id_2) + ":" + wire.pin_2_name};
}

int AddRows(std::vector<gadget>& gadgets, const design& document) {
  block_names subs;
  for (const dvblock& block : document.blocks) subs.emplace(block.id, block.sub);
  int row = 0;
  for (const net& wire : document.nets) {
    if (!wire.selected) continue;
    const std::int64_t y = 130 + 30 * std::int64_t{row};
    gadget swatch = Label({25, y + 5, 50, 20}, "\u2588");
    swatch.ink = WithAlpha(wire.color, 255);
    gadgets.push_back(std::move(swatch));
    gadgets.push_back(DeletionBox(subs, wire, row++, y));
  }
  return row;
}

// The block and the highlighted nets.
rectangle Coloured(const design& document, std::int64_t block_id) {
  const dvblock* const block = FindBlock(document, block_id);
  if (block == nullptr) return {};
  std::int64_t left = block->x;
  std::int64_t top = block->y;
  std::int64_t right = block->x + block->width;
  std::int64_t bottom = block->y + block->height;
  for (const net& wire : document.nets) {
    if (!wire.selected) continue;
    left = std::min({left, wire.x_1, wire.x_2});
    top = std::min({top, wire.y_1, wire.y_2});
    right = std::max({right, wire.x_1, wire.x_2});
    bottom = std::max({bottom, wire.y_1, wire.y_2});
  }
  return {left, top, right - left, bottom - top};
}

// The highlighted nets are those that are listed.
window PinWindow(const design& document, const pin_hit& hit) {
  window shown = {"Pin Info and Nets", 440, 260, {}};
  shown.gadgets = {
      Caption({140, 60, 50, 20}, "Device#:"), Label({200, 60, 200, 20}, std::to_string(hit.id)),
      Caption({140, 80, 50, 20}, "Pin:"),     Label({200, 80, 200, 20}, hit.pin_name),
      Caption({150, 100, 40, 20}, "Sub:"),    Label({200, 100, 200, 25}, SubOf(document, hit.id)),
  };
  shown.beside = Coloured(document, hit.id);
  const int rows = AddRows(shown.gadgets, document);
  // kept: the window grows by 20 a net, the rows take 30.
  shown.height += 20 * rows;
  shown.gadgets.push_back(OkButton(100, 150 + 30 * rows));
  shown.gadgets.push_back(CancelButton(230, 150 + 30 * rows));
  return shown;
}

// Each deleted net is an undo step of its own.
void DeleteCheckedNets(workspace& work, int number) {
  std::unordered_set<std::int64_t, id_hash> checked;
  int row = kFirstRowGadget;
  for (const net& wire : work.document.nets) {
    if (!wire.selected) continue;
    if (work.windows.Desk().GadgetChecked(number, row++)) checked.insert(wire.net_id);
  }
  DeleteNets(work.document, work.undo, checked);
}

}  // namespace

void OpenPinDialog(workspace& work, const pin_hit& hit) {
  HighlightNets(work.document, hit);
  work.canvas.Redraw();
  const auto end_highlight = [&work] {
    ResetNets(work.document);
    work.canvas.Redraw();
  };
  OpenDialog(work, PinWindow(work.document, hit),
             {.apply = [&work](int number) { DeleteCheckedNets(work, number); },
              .after_ok = end_highlight,
              .after_cancel = end_highlight});
}

}  // namespace mardel
