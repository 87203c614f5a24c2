// How large secondary windows are drawn.
#pragma once

#include <QFont>
#include <QRect>
#include <cstdint>

namespace mardel {

// 1 up to the usual size of a desktop's font, and more in proportion to a larger one, so that
// someone who asked for larger letters gets them in windows whose places are numbers.
double DialogScale();

// "Arial Narrow" at 16 pixels times `scale`.
QFont DialogFont(double scale);

int Scaled(std::int64_t length, double scale);
// By its edges, so that what touched still does.
QRect Scaled(const QRect& place, double scale);

}  // namespace mardel
