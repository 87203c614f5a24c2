#include "platform/qt/beside_place.h"

#include <algorithm>
#include <array>

namespace mardel {
namespace {

constexpr QMargins kFrame(8, 36, 8, 8);  // about what desktops draw round a window

int Hidden(const QRect& spared, const QRect& window) {
  const QRect both = spared & window;
  return both.width() * both.height();
}

QRect OnScreen(QRect window, const QRect& screen) {
  window.moveLeft(std::clamp(window.left(), screen.left(),
                             std::max(screen.left(), screen.right() + 1 - window.width())));
  window.moveTop(std::clamp(window.top(), screen.top(),
                            std::max(screen.top(), screen.bottom() + 1 - window.height())));
  return window;
}

}  // namespace

QPoint BesidePlace(const QRect& spared, QSize size, const QRect& screen) {
  const QSize outer = size.grownBy(kFrame);
  const int across = spared.center().x() - outer.width() / 2;
  const int down = spared.center().y() - outer.height() / 2;
  std::array places = {QRect({spared.right() + 1, down}, outer),
                       QRect({spared.left() - outer.width(), down}, outer),
                       QRect({across, spared.bottom() + 1}, outer),
                       QRect({across, spared.top() - outer.height()}, outer)};
  for (QRect& each : places) each = OnScreen(each, screen);
  return std::ranges::min_element(places, {},
                                  [&](const QRect& each) { return Hidden(spared, each); })
      ->topLeft();
}

}  // namespace mardel
