// Makes the widget of one gadget.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <string>

#include "platform/ui.h"

namespace mardel {

// What the user can do with a gadget that the program hears of: press a button, choose in a tree.
using gadget_sink = std::function<void(int gadget_id)>;

// Where gadgets stand.
struct gadget_frame {
  const window& contents;
  double scale = 1;  // pixels of the screen in one of the table
  QWidget& parent;
};

// A child of the parent at the gadget's place. Labels, check boxes and options whose text is wider
// than their place grow into the free room of their row.
QWidget* MakeGadget(const gadget& described, const gadget_frame& frame, const gadget_sink& used);

std::string TextOf(const QWidget& widget);
void SetTextOf(QWidget& widget, const std::string& text);
bool IsChecked(const QWidget& widget);
int SelectedItem(const QWidget& widget);

}  // namespace mardel
