// The one desktop of a test process, on the toolkit's offscreen platform.
#pragma once

#include <QApplication>
#include <QWidget>
#include <array>
#include <memory>

#include "platform/desktop.h"

namespace mardel {

// With an open main window. For all tests, since the toolkit starts only once.
inline desktop& SharedDesktop() {
  static std::array<char, 7> name = {"mardel"};
  static std::array<char*, 2> arguments = {name.data(), nullptr};
  static int count = 1;
  // Never ended: after main it is too late. NOLINTNEXTLINE
  static desktop* const started = [] {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    std::unique_ptr<desktop> made = StartDesktop(count, arguments.data());
    made->OpenMainWindow({.title = "Mardel",
                          .width = 800,
                          .height = 600,
                          .least_width = 200,
                          .least_height = 200,
                          .most_width = 1920,
                          .most_height = 1080,
                          .canvas_width = 1920,
                          .canvas_height = 1080,
                          .scroll_step = 30,
                          .status_field_widths = {90, 0, 100, 100},
                          .draw_canvas = [](painter& p) { p.FillBackground(kBlack); },
                          .list_canvas =
                              [] {
                                return std::vector<canvas_part>{
                                    {canvas_part::kind::kBlock, "Block in 3", {20, 30, 40, 50}},
                                    {canvas_part::kind::kNote, "Note <b>", {1900, 0, 9, 9}}};
                              }});
    return made.release();
  }();
  return *started;
}

// The first visible widget of a type, or null.
template <class widget>
widget* Find() {
  for (QWidget* each : QApplication::allWidgets()) {
    if (auto* found = dynamic_cast<widget*>(each); found != nullptr && !found->isHidden()) {
      return found;
    }
  }
  return nullptr;
}

}  // namespace mardel
