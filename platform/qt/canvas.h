// The drawing area: paints through a callback and turns what the mouse and the keys do into events.
#pragma once

#include <QWidget>
#include <functional>

#include "platform/event.h"
#include "platform/painter.h"
#include "platform/qt/text_layouts.h"
#include "platform/ui.h"

namespace mardel {

using event_sink = std::function<void(const event&)>;

class canvas : public QWidget {
 public:
  // `layouts` must outlive the canvas.
  canvas(QSize size, std::function<void(painter&)> draw, event_sink deliver, text_layouts& layouts);

  void Redraw();
  void ShowOverlay(const overlay& shape);
  void SetPointer(pointer_shape shape);

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

 private:
  void Send(mouse_action action, const QMouseEvent& happened);
  bool SendShortcut(const QKeyEvent& happened);
  void Interrupt();

  std::function<void(painter&)> draw_;
  event_sink deliver_;
  text_layouts& layouts_;
  overlay overlay_;
  bool left_is_down_ = false;
  bool is_second_click_ = false;  // of a double click, while nothing moves
  QPoint wheel_rest_;             // eighths of a degree that make no whole tenth of a step yet
};

}  // namespace mardel
