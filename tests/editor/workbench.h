// A workspace with a scripted user, and one block definition to fill it with.
#pragma once

#include <string>
#include <utility>

#include "editor/canvas_input.h"
#include "editor/dialogs.h"
#include "tests/support/fixed_metrics.h"
#include "tests/support/scripted_ui.h"

namespace mardel {

// 60 x 40. "UNDER" lies below "CV".
inline blockdef Amp() {
  return {.id = 0,
          .lib = "FX",
          .sub = "amp",
          .desc = "",
          .width = 60,
          .height = 40,
          .pins = {{0, "IN", "MREG", "L", "Input", 0, 20},
                   {1, "OUT", "MREG", "R", "Output", 54, 20},
                   {2, "CV", "CREG", "T", "Control", 27, 0},
                   {3, "UNDER", "MREG", "T", "Hidden", 27, 0},
                   {4, "LOW", "mreg", "B", "Lower case", 27, 34}},
          .params = {{5, "Gain", "", "1", ""}, {6, "Mode", "", "x", ""}, {7, "Gain", "", "2", ""}}};
}

struct workbench {
  workspace work;
  scripted_ui desk;
  byte_metrics metrics;
  surroundings outside = {desk, metrics};
  design& document = work.document;

  dvblock& AddBlock(point at) {
    const blockdef amp = Amp();
    return document.blocks.Append({document.next_block_id++, amp.lib, amp.sub, false, at.x, at.y,
                                   amp.width, amp.height, amp.pins, amp.params});
  }
  void AddNet(std::int64_t id_1, const std::string& pin_1, std::int64_t id_2,
              const std::string& pin_2) {
    document.nets.Append({.net_id = document.next_net_id++,
                          .id_1 = id_1,
                          .pin_1_name = pin_1,
                          .id_2 = id_2,
                          .pin_2_name = pin_2});
    for (const dvblock& block : document.blocks) UpdateNetEnds(document, block);
  }
  void AddNote(point at, std::string text) {
    textblock& note = document.texts.Append(
        {.id = document.next_text_id++, .text_str = std::move(text), .x = at.x, .y = at.y});
    MeasureNote(note, metrics);
  }
  void Mouse(mouse_action action, point at) { HandleMouse(work, outside, {action, at}); }
  void Use(int gadget) { HandleDialogGadget(work, outside, {work.dialog.number, gadget}); }
};

}  // namespace mardel
