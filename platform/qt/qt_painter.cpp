#include "platform/qt/qt_painter.h"

#include <QLineF>
#include <QPen>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <optional>
namespace mardel {
namespace {

constexpr double kMargin = 4;
constexpr std::size_t kMostVisible = 8192;  // bytes of one line that can be on the canvas

QColor ColourOf(colour ink) {
  return {RedOf(ink), GreenOf(ink), BlueOf(ink), AlphaOf(ink)};
}

QPointF PointOf(point at) {
  return {static_cast<double>(at.x), static_cast<double>(at.y)};
}

QRectF AreaOf(const rectangle& place) {
  return {static_cast<double>(place.x), static_cast<double>(place.y),
          static_cast<double>(place.width), static_cast<double>(place.height)};
}

// Moves `bound` where the line enters or leaves one side of an area; false when it misses the area.
// `distance` is from the start to the side, `step` the line's whole length in that direction.
bool ClipAt(double step, double distance, double& enter, double& leave) {
  if (step == 0) return distance >= 0;
  const double at = distance / step;
  if (step < 0) {
    enter = std::max(enter, at);
  } else {
    leave = std::min(leave, at);
  }
  return enter <= leave;
}

std::optional<QLineF> Clip(const line& whole, const QRectF& area) {
  const QPointF from = PointOf(whole.from);
  const QPointF step = PointOf(whole.to) - from;
  double enter = 0;
  double leave = 1;
  const bool hits = ClipAt(-step.x(), from.x() - area.left(), enter, leave) &&
                    ClipAt(step.x(), area.right() - from.x(), enter, leave) &&
                    ClipAt(-step.y(), from.y() - area.top(), enter, leave) &&
                    ClipAt(step.y(), area.bottom() - from.y(), enter, leave);
  if (!hits) return std::nullopt;
  return QLineF(from + enter * step, from + leave * step);
}

// How far a line reaches beyond its points to one side.
double HalfOf(const stroke& pen) {
  return std::floor(pen.width / 2);
}

}  // namespace

qt_painter::qt_painter(QPainter& target, const QRectF& visible, text_layouts& layouts)
    : target_(target),
      area_(visible),
      visible_(visible.adjusted(-kMargin, -kMargin, kMargin, kMargin)),
      layouts_(layouts) {
  const QTransform to_device = target.deviceTransform();
  scale_ = to_device.m11();
  shift_ = {std::round(to_device.dx()), std::round(to_device.dy())};
  // Where the canvas starts between two device pixels all of it moves by the same fraction.
  target_.translate((shift_.x() - to_device.dx()) / scale_, (shift_.y() - to_device.dy()) / scale_);
  target_.setRenderHint(QPainter::Antialiasing, false);
}

void qt_painter::FillBackground(colour ink) {
  target_.fillRect(area_, ColourOf(ink));
}

void qt_painter::FillRectangle(const rectangle& place, colour ink) {
  FillPixels(AreaOf(place), ColourOf(ink));
}

void qt_painter::FillPixels(const QRectF& area, const QColor& ink) {
  const QRectF shown = area & visible_;
  if (shown.isEmpty()) return;
  const auto at = [this](double place, double shift) {
    return (std::round(place * scale_ + shift) - shift) / scale_;
  };
  const auto length = [this](double wanted) {
    return std::max(1.0, std::round(wanted * scale_)) / scale_;
  };
  target_.fillRect(QRectF(at(shown.x(), shift_.x()), at(shown.y(), shift_.y()),
                          length(shown.width()), length(shown.height())),
                   ink);
}

void qt_painter::StrokeRectangle(const rectangle& place, const stroke& pen) {
  const QRectF area = AreaOf(place);
  const double corner = pen.dash > 0 ? 0 : HalfOf(pen);
  const QPointF across(corner, 0);
  DrawUpright(area.topLeft() - across, area.topRight() + across, pen);
  DrawUpright(area.bottomLeft() - across, area.bottomRight() + across, pen);
  DrawUpright(area.topLeft(), area.bottomLeft(), pen);
  DrawUpright(area.topRight(), area.bottomRight(), pen);
}

void qt_painter::Lines(std::span<const line> lines, const stroke& pen) {
  for (const line& each : lines) {
    if (each.from.x == each.to.x || each.from.y == each.to.y) {
      DrawUpright(PointOf(each.from), PointOf(each.to), pen);
    } else {
      DrawSlanting(each, pen);
    }
  }
}

// Dashes are filled one by one and only where they can be seen.
void qt_painter::DrawUpright(QPointF from, QPointF to, const stroke& pen) {
  const bool is_level = from.y() == to.y();
  const double across = (is_level ? from.y() : from.x()) - HalfOf(pen);
  const auto [start, last] =
      is_level ? std::minmax({from.x(), to.x()}) : std::minmax({from.y(), to.y()});
  const double end = last + pen.width - 2 * HalfOf(pen);
  const double nearest = std::max(start, is_level ? visible_.left() : visible_.top());
  const double farthest = std::min(end, is_level ? visible_.right() : visible_.bottom());
  const QColor ink = ColourOf(pen.ink);
  const auto fill = [&](double begin, double stop) {
    FillPixels(is_level ? QRectF(begin, across, stop - begin, pen.width)
                        : QRectF(across, begin, pen.width, stop - begin),
               ink);
  };
  if (pen.dash < 1) {
    fill(nearest, farthest);
    return;
  }
  const double both = 2 * pen.dash;  // the gap too
  double begin = start + both * std::floor((nearest - start) / both);
  for (; begin < farthest; begin += both) {
    fill(std::max(begin, nearest), std::min(begin + pen.dash, farthest));
  }
}

void qt_painter::DrawSlanting(const line& slanting, const stroke& pen) {
  const std::optional<QLineF> shown = Clip(slanting, visible_);
  if (!shown) return;
  QPen drawn(ColourOf(pen.ink), pen.width, Qt::SolidLine, Qt::FlatCap);
  if (pen.dash > 0) drawn.setDashPattern({pen.dash / pen.width, pen.dash / pen.width});
  const double middle = pen.width / 2 - HalfOf(pen);  // of the pixel, where the width is odd
  target_.setPen(drawn);
  target_.setRenderHint(QPainter::Antialiasing, true);
  target_.drawLine(shown->translated(middle, middle));
  target_.setRenderHint(QPainter::Antialiasing, false);
}

void qt_painter::Text(point corner, std::string_view text, colour ink) {
  const QPointF at = PointOf(corner);
  constexpr double kTallest = 4 * kCanvasTextSize;
  if (at.x() > visible_.right() || at.y() > visible_.bottom()) return;
  if (at.y() < visible_.top() - kTallest) return;
  if (at.x() < -static_cast<double>(kMostVisible) * kCanvasTextSize) return;
  const QTextLayout& layout = layouts_.Line(text.substr(0, kMostVisible));
  target_.setPen(ColourOf(ink));
  layout.draw(&target_, at);
}

void qt_painter::Paragraph(const rectangle& box, std::string_view text, colour ink) {
  const QRectF area = AreaOf(box);
  if (!area.intersects(visible_)) return;
  const QTextLayout& layout = layouts_.Paragraph(text, area.width());
  const bool is_cut = HeightOf(layout) > area.height();
  target_.setPen(ColourOf(ink));
  if (is_cut) {
    target_.save();
    target_.setClipRect(area & visible_, Qt::IntersectClip);
  }
  layout.draw(&target_, area.topLeft(), {}, visible_);
  if (is_cut) target_.restore();
}

}  // namespace mardel
