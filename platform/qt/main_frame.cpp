#include "platform/qt/main_frame.h"

#include <QCloseEvent>
#include <QScrollBar>
#include <utility>

#include "platform/qt/qt_text.h"

namespace mardel {

main_frame::main_frame(const main_window& contents, event_sink deliver, text_layouts& layouts)
    : deliver_(std::move(deliver)),
      menus_(*this, [this](int id) { deliver_(menu_chosen{id}); }),
      area_(new QScrollArea),
      canvas_(new canvas({contents.canvas_width, contents.canvas_height}, contents.draw_canvas,
                         deliver_, layouts)),
      status_(new status_fields(contents.status_field_widths)) {
  setWindowTitle(TitleText(contents.title));
  area_->setFrameShape(QFrame::NoFrame);
  area_->setWidget(canvas_);
  area_->verticalScrollBar()->setSingleStep(contents.scroll_step);
  area_->horizontalScrollBar()->setSingleStep(contents.scroll_step);
  setCentralWidget(area_);
  setStatusBar(status_);
  setMinimumSize(contents.least_width, contents.least_height);
  setMaximumSize(contents.most_width, contents.most_height);
  resize(contents.width, contents.height);
  canvas_->setFocus();
}

void main_frame::ScrollBy(int pixels) {
  QScrollBar& bar = *area_->verticalScrollBar();
  bar.setValue(bar.value() + pixels);
}

void main_frame::closeEvent(QCloseEvent* happened) {
  happened->ignore();
  deliver_(main_window_close_requested{});
}

void main_frame::resizeEvent(QResizeEvent* happened) {
  QMainWindow::resizeEvent(happened);
  deliver_(main_window_resized{});
}

}  // namespace mardel
