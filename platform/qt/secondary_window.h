// A secondary window made from its table.
#pragma once

#include <QDialog>
#include <functional>

#include "platform/qt/gadget_panel.h"
#include "platform/ui.h"

namespace mardel {

struct secondary_window_sink {
  gadget_sink used;
  std::function<void()> close_requested;  // the title bar's button, or Escape
  std::function<void()> activated;        // got the keyboard
};

// Closes only when it is destroyed: the program decides.
class secondary_window : public QDialog {
 public:
  secondary_window(const mardel::window& contents, QWidget& owner, secondary_window_sink heard);

  gadget_panel& Gadgets() { return *panel_; }
  const gadget_panel& Gadgets() const { return *panel_; }
  bool IsModal() const { return modality_ == window_modality::kModal; }

  void reject() override { heard_.close_requested(); }

 protected:
  bool event(QEvent* happened) override;
  void closeEvent(QCloseEvent* happened) override;
  void resizeEvent(QResizeEvent* happened) override;

 private:
  void ShowInWindow(const mardel::window& contents);
  void ShowScrolling(mardel::window contents, int room);

  secondary_window_sink heard_;
  window_modality modality_;
  double scale_;
  gadget_panel* panel_ = nullptr;  // a child of this
};

}  // namespace mardel
