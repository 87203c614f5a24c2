// The drawing area: paints through a callback and turns what the mouse and the keys do into events.
#pragma once

#include <QBasicTimer>
#include <QPointF>
#include <QWidget>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "platform/canvas_part.h"
#include "platform/event.h"
#include "platform/painter.h"
#include "platform/qt/text_layouts.h"
#include "platform/ui.h"

namespace mardel {

using event_sink = std::function<void(const event&)>;

class canvas : public QWidget {
 public:
  // `scroll` adds pixels to the position of the area that the canvas lies in. `layouts` must
  // outlive the canvas.
  canvas(QSize size, std::function<void(painter&)> draw, event_sink deliver,
         std::function<void(point)> scroll, text_layouts& layouts);

  void Redraw();
  void ShowOverlay(const overlay& shape);
  void SetPointer(pointer_shape shape);

  void ListBy(std::function<std::vector<canvas_part>()> list) { list_ = std::move(list); }
  // As of the last redraw.
  const std::vector<canvas_part>& Parts();

 protected:
  void paintEvent(QPaintEvent* happened) override;
  void mouseMoveEvent(QMouseEvent* happened) override;
  void mousePressEvent(QMouseEvent* happened) override;
  void mouseDoubleClickEvent(QMouseEvent* happened) override;
  void mouseReleaseEvent(QMouseEvent* happened) override;
  void wheelEvent(QWheelEvent* happened) override;
  void keyPressEvent(QKeyEvent* happened) override;
  void focusOutEvent(QFocusEvent* happened) override;
  void hideEvent(QHideEvent* happened) override;
  void timerEvent(QTimerEvent* happened) override;

 private:
  void Send(mouse_action action, QPointF at);
  void ScrollAfterDrag();
  void EndDrag();
  bool SendShortcut(const QKeyEvent& happened);
  void Interrupt();

  std::function<void(painter&)> draw_;
  event_sink deliver_;
  std::function<void(point)> scroll_;
  text_layouts& layouts_;
  std::function<std::vector<canvas_part>()> list_;
  std::optional<std::vector<canvas_part>> parts_;  // listed since the last redraw
  overlay overlay_;
  bool left_is_down_ = false;
  QPointF pressed_at_, mouse_at_;  // on the screen, of the drag
  QBasicTimer edge_scrolling_;     // runs while a drag is at the edge of what is shown
  bool is_second_click_ = false;   // of a double click, while nothing moves
  QPoint wheel_rest_;              // eighths of a degree that make no whole tenth of a step yet
};

}  // namespace mardel
