#include "platform/qt/gadget_fitting.h"

#include <algorithm>

namespace mardel {
namespace {

constexpr int kWindowMargin = 10;
constexpr int kGap = 2;
constexpr int kSharedRows = 5;  // rows overlap by so much and are still rows of their own

bool AreInOneRow(const QRect& one, const QRect& other) {
  return std::min(one.bottom(), other.bottom()) + 1 - std::max(one.top(), other.top()) >
         kSharedRows;
}

struct free_row {
  int left = 0;
  int right = 0;  // the last free pixel
};

// A neighbour that starts inside the place bounds it as well.
free_row FreeRow(const window& contents, const QRect& place) {
  free_row room{std::min(kWindowMargin, place.left()),
                std::max(contents.width - kWindowMargin - 1, place.left())};
  for (const gadget& each : contents.gadgets) {
    const QRect other = PlaceOf(each);
    if (other.left() == place.left() || !AreInOneRow(place, other)) continue;
    if (other.left() > place.left()) {
      room.right = std::min(room.right, other.left() - kGap - 1);
    } else {
      room.left = std::max(room.left, std::min(other.right() + kGap + 1, place.left()));
    }
  }
  return room;
}

bool IsSideLabel(const gadget& described) {
  return described.kind == gadget_kind::kLabel || described.kind == gadget_kind::kRightLabel;
}

// Labels that start in one row stand on one line, whatever their heights.
int LineHeight(const window& contents, const gadget& label) {
  std::int64_t least = label.place.height;
  for (const gadget& each : contents.gadgets) {
    if (IsSideLabel(each) && each.place.y == label.place.y)
      least = std::min(least, each.place.height);
  }
  return static_cast<int>(least);
}

}  // namespace

QRect PlaceOf(const gadget& described) {
  const rectangle& place = described.place;
  return {static_cast<int>(place.x), static_cast<int>(place.y), static_cast<int>(place.width),
          static_cast<int>(place.height)};
}

QRect FittingPlace(const window& contents, const gadget& described, int wanted) {
  QRect place = PlaceOf(described);
  if (IsSideLabel(described)) place.setHeight(LineHeight(contents, described));
  const free_row room = FreeRow(contents, place);
  place.setRight(std::min(place.right(), room.right));
  const int missing = std::max(0, wanted - place.width());
  const int left_room = std::max(0, place.left() - room.left);
  const int right_room = std::max(0, room.right - place.right());
  int to_left = 0;
  if (described.kind == gadget_kind::kRightLabel) {
    to_left = std::min(missing, left_room);
  } else if (described.kind == gadget_kind::kCentredLabel) {
    to_left = std::min(missing / 2, std::min(left_room, right_room));
  } else {
    to_left = std::clamp(missing - right_room, 0, left_room);
  }
  place.setLeft(place.left() - to_left);
  place.setRight(place.right() + std::min(missing - to_left, right_room));
  return place;
}

}  // namespace mardel
