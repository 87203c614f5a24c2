#include "platform/qt/canvas.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "platform/qt/qt_painter.h"

namespace mardel {
namespace {

constexpr int kTenthOfStep = 12;  // eighths of a degree, as wheels report them

constexpr int kEdge = 16;            // pixels inside what is shown where a drag scrolls
constexpr int kMostScroll = 40;      // pixels at once
constexpr int kScrollInterval = 30;  // milliseconds

// How far a drag at `at` scrolls, when the canvas is shown from `low` to `high`.
int EdgeScroll(double at, int low, int high) {
  const double beyond = at < low + kEdge    ? at - (low + kEdge)
                        : at > high - kEdge ? at - (high - kEdge)
                                            : 0.0;
  return static_cast<int>(std::clamp<double>(beyond, -kMostScroll, kMostScroll));
}

struct arrow_key {
  int key;
  point direction;
};

constexpr arrow_key kArrows[] = {{Qt::Key_Left, {-1, 0}},
                                 {Qt::Key_Right, {1, 0}},
                                 {Qt::Key_Up, {0, -1}},
                                 {Qt::Key_Down, {0, 1}}};

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
               std::function<void(point)> scroll, text_layouts& layouts)
    : draw_(std::move(draw)),
      deliver_(std::move(deliver)),
      scroll_(std::move(scroll)),
      layouts_(layouts) {
  setFixedSize(size);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAccessibleName(QStringLiteral("Schematic"));
}

const std::vector<canvas_part>& canvas::Parts() {
  if (!parts_) parts_ = list_ ? list_() : std::vector<canvas_part>();
  return *parts_;
}

void canvas::Redraw() {
  parts_.reset();
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

void canvas::Send(mouse_action action, QPointF at) {
  // Down to the pixel that the pointer is on, which between two device pixels is not the nearest.
  const auto pixel = [](double place) { return static_cast<std::int64_t>(std::floor(place)); };
  deliver_(canvas_mouse{action, {pixel(at.x()), pixel(at.y())}});
}

void canvas::mouseMoveEvent(QMouseEvent* happened) {
  is_second_click_ = false;
  Send(mouse_action::kMove, happened->position());
  if (!left_is_down_) return;
  mouse_at_ = happened->globalPosition();
  const QPointF moved = mouse_at_ - pressed_at_;
  if (moved.manhattanLength() < QApplication::startDragDistance()) return;
  if (!edge_scrolling_.isActive()) edge_scrolling_.start(kScrollInterval, this);
}

void canvas::mousePressEvent(QMouseEvent* happened) {
  if (happened->button() == Qt::LeftButton) {
    left_is_down_ = true;
    pressed_at_ = happened->globalPosition();
    Send(mouse_action::kLeftPress, happened->position());
  } else if (happened->button() == Qt::RightButton) {
    Send(mouse_action::kRightPress, happened->position());
  }
}

// The second press of a quick pair is a press like any other, which may begin a drag.
void canvas::mouseDoubleClickEvent(QMouseEvent* happened) {
  mousePressEvent(happened);
  is_second_click_ = left_is_down_;
}

void canvas::mouseReleaseEvent(QMouseEvent* happened) {
  if (happened->button() != Qt::LeftButton || !left_is_down_) return;
  EndDrag();
  Send(mouse_action::kLeftRelease, happened->position());
  if (std::exchange(is_second_click_, false))
    Send(mouse_action::kDoubleClick, happened->position());
}

void canvas::timerEvent(QTimerEvent* happened) {
  if (happened->timerId() != edge_scrolling_.timerId()) return QWidget::timerEvent(happened);
  ScrollAfterDrag();
}

// The mouse rests at the edge, and the canvas moves below it.
void canvas::ScrollAfterDrag() {
  const QRect shown = visibleRegion().boundingRect();
  const QPointF at = mapFromGlobal(mouse_at_);
  const point by{EdgeScroll(at.x(), shown.left(), shown.right()),
                 EdgeScroll(at.y(), shown.top(), shown.bottom())};
  if (by == point{}) return edge_scrolling_.stop();
  const QPoint before = pos();
  scroll_(by);
  if (pos() != before) Send(mouse_action::kMove, mapFromGlobal(mouse_at_));
}

void canvas::EndDrag() {
  left_is_down_ = false;
  edge_scrolling_.stop();
}

// Accepted, so that the scroll area does not scroll on its own as well.
void canvas::wheelEvent(QWheelEvent* happened) {
  happened->accept();
  const bool is_sideways = happened->modifiers().testFlag(Qt::ShiftModifier);
  const QPoint turned = happened->angleDelta();
  wheel_rest_ += is_sideways ? turned.transposed() : turned;
  const QPoint tenths(wheel_rest_.x() / kTenthOfStep, wheel_rest_.y() / kTenthOfStep);
  wheel_rest_ -= tenths * kTenthOfStep;
  if (!tenths.isNull()) deliver_(canvas_wheel{{tenths.x(), tenths.y()}});
}

bool canvas::SendShortcut(const QKeyEvent& happened) {
  static const std::pair<QKeySequence::StandardKey, edit_shortcut> keys[] = {
      {QKeySequence::SelectAll, edit_shortcut::kSelectAll},
      {QKeySequence::Cut, edit_shortcut::kCut},
      {QKeySequence::Copy, edit_shortcut::kCopy},
      {QKeySequence::Paste, edit_shortcut::kPaste}};
  for (const auto& [key, what] : keys) {
    if (!happened.matches(key)) continue;
    deliver_(canvas_shortcut{what});
    return true;
  }
  return false;
}

void canvas::keyPressEvent(QKeyEvent* happened) {
  if (happened->key() == Qt::Key_Backspace || happened->key() == Qt::Key_Delete) {
    deliver_(canvas_key{kDeleteKeyCode});
    return;
  }
  const auto* const arrow = std::ranges::find(kArrows, happened->key(), &arrow_key::key);
  if (arrow != std::end(kArrows)) {
    deliver_(canvas_arrow{.direction = arrow->direction,
                          .with_shift = happened->modifiers().testFlag(Qt::ShiftModifier),
                          .is_repeat = happened->isAutoRepeat()});
    return;
  }
  if (SendShortcut(*happened)) return;
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
  EndDrag();
  deliver_(canvas_interrupted{});
}

}  // namespace mardel
