#include "platform/qt/canvas.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/qt/qt_painter.h"

namespace mardel {
namespace {

constexpr int kWheelStep = 120;  // eighths of a degree, as wheels report them

void PaintOverlay(painter& target, const overlay& shape) {
  const auto [from, to] = shape.span;
  if (shape.kind == overlay::shape::kLine) target.Lines({&shape.span, 1}, shape.pen);
  if (shape.kind == overlay::shape::kRectangle) {
    target.StrokeRectangle({std::min(from.x, to.x), std::min(from.y, to.y),
                            std::max(from.x, to.x) - std::min(from.x, to.x),
                            std::max(from.y, to.y) - std::min(from.y, to.y)},
                           shape.pen);
  }
}

}  // namespace

canvas::canvas(QSize size, std::function<void(painter&)> draw, event_sink deliver,
               text_layouts& layouts)
    : draw_(std::move(draw)), deliver_(std::move(deliver)), layouts_(layouts) {
  setFixedSize(size);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAccessibleName("Schematic");
}

void canvas::Redraw() {
  overlay_ = {};
  update();
}

void canvas::ShowOverlay(const overlay& shape) {
  overlay_ = shape;
  update();
}

void canvas::SetPointer(pointer_shape shape) {
  const Qt::CursorShape wanted = shape == pointer_shape::kCross ? Qt::CrossCursor : Qt::ArrowCursor;
  if (cursor().shape() != wanted) setCursor(wanted);
}

void canvas::paintEvent(QPaintEvent* happened) {
  QPainter target(this);
  qt_painter drawn(target, QRectF(happened->rect()), layouts_);
  draw_(drawn);
  PaintOverlay(drawn, overlay_);
}

void canvas::Send(mouse_action action, const QMouseEvent& happened) {
  // Down to the pixel that the pointer is on, which between two device pixels is not the nearest.
  const auto pixel = [](double at) { return static_cast<std::int64_t>(std::floor(at)); };
  const QPointF at = happened.position();
  deliver_(canvas_mouse{action, {pixel(at.x()), pixel(at.y())}});
}

void canvas::mouseMoveEvent(QMouseEvent* happened) {
  Send(mouse_action::kMove, *happened);
}

void canvas::mousePressEvent(QMouseEvent* happened) {
  if (happened->button() == Qt::LeftButton) {
    left_is_down_ = true;
    Send(mouse_action::kLeftPress, *happened);
  } else if (happened->button() == Qt::RightButton) {
    Send(mouse_action::kRightPress, *happened);
  }
}

// The second press of a quick pair is a press like any other.
void canvas::mouseDoubleClickEvent(QMouseEvent* happened) {
  mousePressEvent(happened);
}

void canvas::mouseReleaseEvent(QMouseEvent* happened) {
  if (happened->button() != Qt::LeftButton || !left_is_down_) return;
  left_is_down_ = false;
  Send(mouse_action::kLeftRelease, *happened);
}

// Accepted, so that the scroll area does not scroll on its own as well.
void canvas::wheelEvent(QWheelEvent* happened) {
  const int turned = happened->angleDelta().y();
  if (turned == 0) {
    happened->ignore();
    return;
  }
  happened->accept();
  wheel_rest_ += turned;
  const int steps = wheel_rest_ / kWheelStep;
  wheel_rest_ -= steps * kWheelStep;
  if (steps != 0) deliver_(canvas_wheel{steps});
}

void canvas::keyPressEvent(QKeyEvent* happened) {
  if (happened->key() == Qt::Key_Backspace || happened->key() == Qt::Key_Delete) {
    deliver_(canvas_key{kDeleteKeyCode});
    return;
  }
  QWidget::keyPressEvent(happened);
}

void canvas::focusOutEvent(QFocusEvent* happened) {
  QWidget::focusOutEvent(happened);
  Interrupt();
}

void canvas::hideEvent(QHideEvent* happened) {
  QWidget::hideEvent(happened);
  Interrupt();
}

void canvas::Interrupt() {
  if (!left_is_down_) return;
  left_is_down_ = false;
  deliver_(canvas_interrupted{});
}

}  // namespace mardel
