#include "editor/rendering.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/fixed_metrics.h"
#include "tests/support/recording_painter.h"

namespace mardel {
namespace {

using shapes = std::vector<std::string>;

shapes Drawn(const design& document, grid lines) {
  library_set libraries;
  libraries.AddLibrary({"MIX", "", Rgba(1, 2, 3, 0), Rgba(4, 5, 6, 0)});
  recording_painter canvas;
  DrawDesign(canvas, document, {libraries, byte_metrics(), lines});
  return canvas.shapes;
}

net Net(std::int64_t x, colour ink = kNetColour) {
  return {0, ink, false, 0, 0, "", x, 0, 0, 0, "", 0, 5};
}

TEST(DrawDesign, StacksBackgroundBlocksNetsAndNotes) {
  design d;
  d.blocks.Append({0, "Mix", "No library yet", false, 10, 20, 80, 40, {}, {}});
  d.blocks.Append({1, "MIX", "mix2", true, 100, 20, 80, 40, {}, {}}).pins = {
      {1, "in", "MREG", "L", "", -3, 17}, {2, "out", "MREG", "R", "", 77, 17}};
  d.blocks.Append({2, "lost", "keeps the colours", false, 200, 20, 80, 40, {}, {}});
  for (const net& wire : {Net(1), Net(2), Net(3, Rgba(9, 9, 9)), Net(4)}) d.nets.Append(wire);
  d.texts.Append({0, false, "two\nlines", 7, 8, 0, 0});
  d.texts.Append({0, true, std::string(60, '\n'), 7, 8, 0, 0});

  const shapes expected = {
      "background 220,220,220,255",
      "fill (10,20 80x40) 0,0,0,192",
      "text (19,30) No library yet 0,0,0,255",
      "stroke (100,20 80x40) 255,0,0,255 width 2 dash 10",
      "fill (100,20 80x40) 1,2,3,192",
      "text (109,30) mix2 4,5,6,255",
      "fill (97,37 6x6) 0,0,255,255",
      "fill (177,37 6x6) 0,0,255,255",
      "fill (200,20 80x40) 1,2,3,192",
      "text (209,30) keeps the colours 4,5,6,255",
      "line (1,0)-(0,5) 102,0,102,255 width 2",
      "line (2,0)-(0,5) 102,0,102,255 width 2",
      "line (3,0)-(0,5) 9,9,9,255 width 2",
      "line (4,0)-(0,5) 102,0,102,255 width 2",
      "paragraph (7,8 999x36) two\nlines 0,0,0,255",
      "paragraph (7,8 999x999) " + std::string(60, '\n') + " 255,0,0,255",
  };
  EXPECT_THAT(Drawn(d, grid::kHidden), testing::ElementsAreArray(expected));
}

TEST(DrawDesign, RulesTheGridUnderAllAndKeepsEveryNetOfALongRun) {
  design d;
  shapes expected = {"background 220,220,220,255"};
  const auto rule = [&](int at, const std::string& from, const std::string& to) {
    const std::string ink = at % 100 == 0 ? "0,0,0,255" : "125,125,125,255";
    expected.push_back("line (" + from + ")-(" + to + ") " + ink + " width 1");
  };
  const auto text = [](int number) { return std::to_string(number); };
  for (int x = 0; x <= 1910; x += 10) rule(x, text(x) + ",0", text(x) + ",1079");
  for (int y = 0; y <= 1070; y += 10) rule(y, "0," + text(y), "1919," + text(y));
  for (int x = 0; x < 129; ++x) {
    d.nets.Append(Net(x));
    expected.push_back("line (" + text(x) + ",0)-(0,5) 102,0,102,255 width 2");
  }
  EXPECT_THAT(Drawn(d, grid::kShown), testing::ElementsAreArray(expected));
}

}  // namespace
}  // namespace mardel
