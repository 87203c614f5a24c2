#include "platform/qt/main_frame.h"

#include <QCloseEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QPixmap>
#include <QScrollBar>
#include <QUrl>
#include <algorithm>
#include <utility>

#include "platform/qt/qt_text.h"

namespace mardel {

main_frame::main_frame(const main_window& contents, event_sink deliver,
                       std::function<void()> reached_for, text_layouts& layouts)
    : deliver_(std::move(deliver)),
      reached_for_(std::move(reached_for)),
      menus_(*this, [this](int id) { deliver_(menu_chosen{id}); }),
      area_(new QScrollArea),
      canvas_(new canvas(
          {contents.canvas_width, contents.canvas_height}, contents.draw_canvas, deliver_,
          [this](point by) { ScrollBy(by); }, layouts)),
      status_(new status_fields(contents.status_field_widths)) {
  setWindowTitle(TitleText(contents.title));
  canvas_->ListBy(contents.list_canvas);
  QPixmap icon;
  if (icon.loadFromData(reinterpret_cast<const uchar*>(contents.icon.data()),
                        static_cast<uint>(contents.icon.size()))) {
    setWindowIcon(icon);
  }
  area_->setFrameShape(QFrame::NoFrame);
  area_->setFocusPolicy(Qt::NoFocus);  // nothing takes the keyboard from the canvas
  area_->setWidget(canvas_);
  area_->verticalScrollBar()->setSingleStep(contents.scroll_step);
  area_->horizontalScrollBar()->setSingleStep(contents.scroll_step);
  setCentralWidget(area_);
  setStatusBar(status_);
  setMinimumSize(contents.least_width, contents.least_height);
  setMaximumSize(contents.most_width, contents.most_height);
  resize(contents.width, contents.height);
  setAcceptDrops(true);
  canvas_->setFocus();
}

void main_frame::ScrollBy(point pixels) {
  QScrollBar& across = *area_->horizontalScrollBar();
  QScrollBar& down = *area_->verticalScrollBar();
  across.setValue(across.value() + static_cast<int>(pixels.x));
  down.setValue(down.value() + static_cast<int>(pixels.y));
}

// The last call counts where not all of the place can be shown.
void main_frame::ScrollTo(const rectangle& place) {
  const auto on_canvas = [this](std::int64_t x, std::int64_t y) {
    return QPoint(static_cast<int>(std::clamp<std::int64_t>(x, 0, canvas_->width() - 1)),
                  static_cast<int>(std::clamp<std::int64_t>(y, 0, canvas_->height() - 1)));
  };
  const QPoint last = on_canvas(place.x + place.width - 1, place.y + place.height - 1);
  const QPoint first = on_canvas(place.x, place.y);
  area_->ensureVisible(last.x(), last.y(), 1, 1);  // without a margin the pixel stays outside
  area_->ensureVisible(first.x(), first.y(), 0, 0);
}

bool main_frame::event(QEvent* happened) {
  if (happened->type() == QEvent::WindowActivate && !isEnabled()) reached_for_();
  return QMainWindow::event(happened);
}

void main_frame::closeEvent(QCloseEvent* happened) {
  happened->ignore();
  if (!isEnabled()) return reached_for_();
  deliver_(main_window_close_requested{});
}

void main_frame::dragEnterEvent(QDragEnterEvent* happened) {
  if (happened->mimeData()->hasUrls()) happened->acceptProposedAction();
}

void main_frame::dropEvent(QDropEvent* happened) {
  files_dropped dropped;
  for (const QUrl& each : happened->mimeData()->urls()) {
    dropped.paths.push_back(LocalPath(each));
  }
  happened->acceptProposedAction();
  deliver_(dropped);
}

void main_frame::resizeEvent(QResizeEvent* happened) {
  QMainWindow::resizeEvent(happened);
  deliver_(main_window_resized{});
}

}  // namespace mardel
