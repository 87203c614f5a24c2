// The inside of a secondary window: its gadgets, made as they come into sight.
#pragma once

#include <QWidget>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/qt/gadget_widgets.h"
#include "platform/ui.h"

namespace mardel {

// A pin can have ten thousand nets, of which a screen shows thirty.
class gadget_panel : public QWidget {
 public:
  // `scale`: pixels of the screen in one of the table.
  gadget_panel(mardel::window contents, double scale, QWidget& owner, gadget_sink used);

  // Makes the gadgets that reach into these rows, pixels of the screen, and those that one Tab can
  // lead to.
  void MakeRows(int top, int bottom);
  void MakeAll();
  // Gives the keyboard to the first gadget that text is typed into.
  void FocusFirstField();

  // Made when it is not there yet; null for an id that no gadget has.
  QWidget* Find(int gadget_id);
  std::string Text(int gadget_id) const;
  void SetText(int gadget_id, const std::string& text);
  bool IsChecked(int gadget_id) const;
  int SelectedTreeItem(int gadget_id) const;

 protected:
  void resizeEvent(QResizeEvent* happened) override;

 private:
  QWidget& Make(std::size_t index);
  QWidget* LastFocusBefore(std::size_t index) const;
  void Name(const gadget& described, QWidget& shown);
  const QWidget* Made(int gadget_id) const;

  mardel::window contents_;
  double scale_;
  gadget_sink used_;
  std::vector<QWidget*> made_;  // by the index of the gadget; children of this
  std::unordered_map<int, std::size_t> index_of_;
};

// The lowest row of a gadget or the window, whichever is lower, pixels of the table.
int BottomOf(const window& contents);

}  // namespace mardel
