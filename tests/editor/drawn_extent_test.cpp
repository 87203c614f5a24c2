#include "editor/drawn_extent.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/support/fixed_metrics.h"

namespace mardel {
namespace {

constexpr std::int64_t kFar = std::numeric_limits<std::int64_t>::max();

std::optional<extent> Extent(const std::vector<dvblock>& blocks, const std::vector<net>& nets,
                             const std::vector<textblock>& notes) {
  design d;
  for (const dvblock& block : blocks) d.blocks.Append(block);
  for (const net& wire : nets) d.nets.Append(wire);
  for (const textblock& note : notes) d.texts.Append(note);
  return DrawnExtent(d, {library_set(), byte_metrics(), grid::kShown});
}

net Net(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2) {
  return {0, kNetColour, false, 0, 0, "", x1, y1, 0, 0, "", x2, y2};
}

TEST(DrawnExtent, ReachesAroundEveryShapeAndItsPen) {
  const dvblock plain{0, "", "ab", false, 10, 20, 80, 40, {}, {}};
  dvblock selected = plain;
  selected.selected = true;
  dvblock labelled = plain;
  labelled.sub = std::string(20, 'x');  // 160 pixels from x = 19
  dvblock pinned = plain;
  pinned.pins = {{1, "in", "MREG", "L", "", -3, 17}, {2, "out", "MREG", "R", "", 77, 38}};
  const struct {
    std::optional<extent> drawn, expected;
  } cases[] = {
      {Extent({}, {}, {}), std::nullopt},
      {Extent({plain}, {}, {}), extent{10, 20, 90, 60}},
      {Extent({selected}, {}, {}), extent{9, 19, 91, 61}},
      {Extent({labelled}, {}, {}), extent{10, 20, 179, 60}},
      {Extent({pinned}, {}, {}), extent{7, 20, 93, 64}},
      {Extent({}, {Net(300, 100, 5, 90)}, {}), extent{4, 89, 301, 101}},
      {Extent({}, {}, {{0, false, "ab\r\nabcd\n", 7, -8, 0, 0}}), extent{7, -8, 39, 46}},
      {Extent({}, {}, {{0, false, "\tab", 0, 0, 0, 0}}), extent{0, 0, 104, 18}},
      {Extent({}, {}, {{0, false, std::string(500, 'x'), 1, 0, 0, 0}}), extent{1, 0, 1000, 18}},
      {Extent({plain}, {Net(0, 0, kFar, -kFar)}, {}), extent{-1, -0x1p63, 0x1p63, 60}},
  };
  for (const auto& [drawn, expected] : cases) {
    EXPECT_EQ(drawn, expected) << &drawn - &cases[0].drawn;
  }
}

}  // namespace
}  // namespace mardel
