#include "editor/design.h"

#include <gtest/gtest.h>

#include "tests/support/fixed_metrics.h"

namespace mardel {
namespace {

// Pins "in" and "out", centres at (0, 20) and (80, 20) of the block.
dvblock Block(std::int64_t id, std::int64_t x, bool selected) {
  dvblock block{id, "", "", selected, x, 200, 80, 40, {}, {}};
  block.pins = {{1, "in", "MREG", "L", "", -3, 17}, {2, "out", "CREG", "R", "", 77, 17}};
  return block;
}

using ends = std::vector<point>;

ends EndsOf(const design& document) {
  ends all;
  for (const net& w : document.nets) all.insert(all.end(), {{w.x_1, w.y_1}, {w.x_2, w.y_2}});
  return all;
}

TEST(Design, MovesNetEndsToTheirPinsAndLeavesUnknownPins) {
  design d;
  d.blocks.Append(Block(3, 100, true));
  d.blocks.Append(Block(8, -1000, false));
  d.blocks.Append(Block(9, 500, true));
  d.nets.Append({0, kNetColour, false, 3, 2, "out", 5, 5, 8, 1, "in", 5, 5});
  d.nets.Append({1, kNetColour, false, 3, 1, "in", 5, 5, 3, 2, "out", 5, 5});
  d.nets.Append({2, kNetColour, false, 9, 1, "gone", 5, 5, 3, 1, "In", 5, 5});
  d.nets.Append({3, kNetColour, false, 8, 1, "in", 5, 5, 9, 1, "in", 5, 5});
  ends expected = {{180, 220}, {5, 5}, {100, 220}, {180, 220}, {5, 5}, {5, 5}, {5, 5}, {5, 5}};
  UpdateNetEnds(d, *FindBlock(d, 3));
  EXPECT_EQ(EndsOf(d), expected);
  expected.back() = {500, 220};
  UpdateNetEndsOfSelection(d);
  EXPECT_EQ(EndsOf(d), expected);

  EXPECT_EQ(PinType(d, 8, "out"), "CREG");
  EXPECT_EQ(PinType(d, 8, "Out"), "");
  EXPECT_EQ(PinType(d, 4, "out"), "");
  d.blocks.Append(Block(8, 0, false));
  EXPECT_EQ(FindBlock(d, 8)->x, -1000) << "the first of two of one id";
}

TEST(Design, MeasuresNotesByTheirWidestVisibleLineAndAllTheirLines) {
  const textblock measured[] = {
      {0, false, "", 0, 0, 3, 18},
      {0, false, "abc      ", 0, 0, 27, 18},
      {0, false, "a\nabcd\nab", 0, 0, 35, 54},
      {0, false, "a\r\nab\r\n", 0, 0, 19, 54},
      {0, false, std::string(60, '\n'), 0, 0, 3, 999},
  };
  for (const textblock& expected : measured) {
    textblock note = expected;
    note.width = note.height = 500;
    MeasureNote(note, byte_metrics());
    EXPECT_EQ(note, expected) << note.text_str << ' ' << note.width << 'x' << note.height;
  }
}

}  // namespace
}  // namespace mardel
