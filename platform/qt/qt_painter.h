// Draws with the toolkit's painter: onto the screen or an image.
#pragma once

#include <QPainter>
#include <QPointF>
#include <QRectF>

#include "platform/painter.h"
#include "platform/qt/text_layouts.h"

namespace mardel {

// Upright lines and rectangles cover whole pixels of the device at every scale factor: a line 1
// wide covers the pixels that its points name, a line 2 wide lies evenly on both sides of them.
// Slanting lines are antialiased.
class qt_painter : public painter {
 public:
  // Nothing is drawn beyond `visible`, canvas pixels; huge places of a hostile design never reach
  // the toolkit. `target` and `layouts` must outlive the painter.
  qt_painter(QPainter& target, const QRectF& visible, text_layouts& layouts);

  void FillBackground(colour ink) override;
  void FillRectangle(const rectangle& place, colour ink) override;
  void StrokeRectangle(const rectangle& place, const stroke& pen) override;
  void Lines(std::span<const line> lines, const stroke& pen) override;
  void Text(point corner, std::string_view text, colour ink) override;
  void Paragraph(const rectangle& box, std::string_view text, colour ink) override;

 private:
  void FillPixels(const QRectF& area, const QColor& ink);
  void DrawUpright(QPointF from, QPointF to, const stroke& pen);
  void DrawSlanting(const line& slanting, const stroke& pen);

  QPainter& target_;
  QRectF area_;
  QRectF visible_;  // the area and a margin, where a cut can't be seen
  text_layouts& layouts_;
  double scale_ = 1;  // device pixels in a canvas pixel
  QPointF shift_;     // of the canvas's origin, device pixels
};

}  // namespace mardel
