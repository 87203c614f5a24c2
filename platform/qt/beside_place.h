// Where a window opens that should not hide something.
#pragma once

#include <QPoint>
#include <QRect>

namespace mardel {

// The top left corner of a window of `size` on `screen`: right of `spared`, else left of, below or
// above it, else where it hides least of it.
QPoint BesidePlace(const QRect& spared, QSize size, const QRect& screen);

}  // namespace mardel
