// The main window: menu bar, scrolling canvas, status bar.
#pragma once

#include <QMainWindow>
#include <QScrollArea>
#include <functional>

#include "platform/desktop.h"
#include "platform/qt/canvas.h"
#include "platform/qt/menu_bar.h"
#include "platform/qt/status_fields.h"

namespace mardel {

class main_frame : public QMainWindow {
 public:
  // `reached_for` hears of clicks on the window and of close requests while it is disabled.
  // `layouts` must outlive the window.
  main_frame(const main_window& contents, event_sink deliver, std::function<void()> reached_for,
             text_layouts& layouts);

  canvas& Canvas() { return *canvas_; }
  menu_bar& Menus() { return menus_; }
  status_fields& Status() { return *status_; }
  void ScrollBy(point pixels);
  void ScrollTo(const rectangle& place);

 protected:
  bool event(QEvent* happened) override;
  void closeEvent(QCloseEvent* happened) override;
  void dragEnterEvent(QDragEnterEvent* happened) override;
  void dropEvent(QDropEvent* happened) override;
  void resizeEvent(QResizeEvent* happened) override;

 private:
  event_sink deliver_;
  std::function<void()> reached_for_;
  menu_bar menus_;
  QScrollArea* area_;  // these are children of this
  canvas* canvas_;
  status_fields* status_;
};

}  // namespace mardel
