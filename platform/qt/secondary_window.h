// A secondary window made from its table.
#pragma once

#include <QDialog>
#include <functional>
#include <string>
#include <unordered_map>

#include "platform/ui.h"

namespace mardel {

struct secondary_window_sink {
  std::function<void(int gadget_id)> used;
  std::function<void()> close_requested;  // the title bar's button, or Escape
};

// Closes only when it is destroyed: the program decides.
class secondary_window : public QDialog {
 public:
  secondary_window(const mardel::window& contents, QWidget& owner, secondary_window_sink heard);

  // Null for an id that no gadget has.
  QWidget* Find(int gadget_id) const;

  void reject() override { heard_.close_requested(); }

 protected:
  void closeEvent(QCloseEvent* happened) override;

 private:
  QWidget& MakeBody(const mardel::window& contents);
  void AddGadgets(const mardel::window& contents, QWidget& body);

  secondary_window_sink heard_;
  std::unordered_map<int, QWidget*> gadgets_;  // children of this
};

}  // namespace mardel
