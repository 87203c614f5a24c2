// The one desktop of a test process, on the toolkit's offscreen platform.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QWidget>
#include <array>
#include <memory>

#include "platform/desktop.h"

namespace mardel {

// Started by the first test that asks for it, and ended within main: afterwards there is no
// platform on which what still waits for its deletion could go.
class toolkit : public testing::Environment {
 public:
  desktop& Desk() {
    if (desk_ == nullptr) Start();
    return *desk_;
  }
  void TearDown() override {
    if (desk_ != nullptr) QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    desk_.reset();
  }

 private:
  void Start() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    desk_ = StartDesktop(count_, arguments_.data());
    desk_->OpenMainWindow({.title = "Mardel",
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
                           .list_canvas = Parts});
  }
  static std::vector<canvas_part> Parts() {
    return {{canvas_part::kind::kBlock, "Block in 3", {20, 30, 40, 50}},
            {canvas_part::kind::kNote, "Note <b>", {1900, 0, 9, 9}}};
  }

  std::array<char, 7> name_ = {"mardel"};
  std::array<char*, 2> arguments_ = {name_.data(), nullptr};
  int count_ = 1;
  std::unique_ptr<desktop> desk_;
};

inline toolkit* Toolkit() {
  static auto* const only = new toolkit;  // which the tests' framework owns
  return only;
}
inline const bool kIsEnded = testing::AddGlobalTestEnvironment(Toolkit()) != nullptr;

// With an open main window. For all tests, since the toolkit starts only once.
inline desktop& SharedDesktop() {
  return Toolkit()->Desk();
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
