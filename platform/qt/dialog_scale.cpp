#include "platform/qt/dialog_scale.h"

#include <QApplication>
#include <algorithm>
#include <cmath>

namespace mardel {
namespace {

constexpr double kPixelSize = 16;
constexpr double kUsualPoints = 10;
constexpr double kPixelsPerPoint = 96.0 / 72.0;

}  // namespace

double DialogScale() {
  const QFont desktop = QApplication::font();
  const double points =
      desktop.pointSizeF() > 0 ? desktop.pointSizeF() : desktop.pixelSize() / kPixelsPerPoint;
  return std::max(1.0, points / kUsualPoints);
}

QFont DialogFont(double scale) {
  // The second has the widths of the first, where no rule of the desktop says so.
  QFont font(QStringList{QStringLiteral("Arial Narrow"), QStringLiteral("Liberation Sans Narrow")});
  // Rounded down: a text is not wider than its scaled place.
  font.setPixelSize(static_cast<int>(kPixelSize * scale));
  return font;
}

int Scaled(std::int64_t length, double scale) {
  return static_cast<int>(std::lround(static_cast<double>(length) * scale));
}

QRect Scaled(const QRect& place, double scale) {
  return {QPoint(Scaled(place.left(), scale), Scaled(place.top(), scale)),
          QPoint(Scaled(place.right() + 1, scale) - 1, Scaled(place.bottom() + 1, scale) - 1)};
}

}  // namespace mardel
