// Probes what the painter and its layouts leave on an image.
#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <cmath>
#include <set>

#include "platform/qt/qt_painter.h"
#include "platform/qt/qt_text_metrics.h"
#include "platform/qt/text_layouts.h"
#include "tests/platform/toolkit.h"

namespace mardel {
namespace {

// Of device pixels, a letter each.
std::string Letters(const QImage& image, QPoint from, QPoint step) {
  std::string seen;
  for (QPoint at = from; image.rect().contains(at); at += step) {
    const QRgb pixel = image.pixel(at);
    seen += pixel == qRgb(220, 220, 220) ? '.' : pixel == qRgb(0, 0, 0) ? 'K' : '?';
  }
  return seen;
}

struct scaled_case {
  double scale;
  const char* lines;   // of widths 1 and 2 at 3 and 7
  const char* dashes;  // the upper side, from 2 to 14, in dashes of 4; the right side starts at 14
};

const scaled_case kScales[] = {
    {1, "...K..KK........", "..KKKK....KKKKK."},
    {1.5, ".....KK..KKK............", "...KKKKKK......KKKKKKKK."},
    {2, "......KK....KKKK................", "....KKKKKKKK........KKKKKKKKKK.."},
};

class canvas_painting_test : public testing::Test {
 protected:
  // Draws on 16 x 16 canvas pixels, which start `shift` beside a device pixel.
  template <class action>
  QImage Draw(double scale, action draw, double shift = 0) {
    const int size = static_cast<int>(16 * scale);
    QImage image(size, size, QImage::Format_RGB32);
    QPainter target(&image);
    target.translate(shift, shift);
    target.scale(scale, scale);
    qt_painter drawn(target, QRectF(0, 0, 16, 16), layouts);
    drawn.FillBackground(Rgba(220, 220, 220));
    draw(drawn);
    return image;
  }

  desktop& desk = SharedDesktop();
  text_layouts layouts;
};

TEST_F(canvas_painting_test, CoversWholePixelsAtEveryScale) {
  for (const scaled_case& each : kScales) {
    const QImage upright = Draw(each.scale, [](painter& p) {
      const line one[] = {{{3, 0}, {3, 15}}};
      const line two[] = {{{7, 16}, {7, 0}}};
      p.Lines(one, {kBlack, 1.0});
      p.Lines(two, {kBlack, 2.0});
    });
    const QImage level = Draw(each.scale, [](painter& p) {
      const line one[] = {{{0, 3}, {15, 3}}};
      const line two[] = {{{16, 7}, {0, 7}}};
      p.Lines(one, {kBlack, 1.0});
      p.Lines(two, {kBlack, 2.0});
    });
    const QImage dashed =
        Draw(each.scale, [](painter& p) { p.StrokeRectangle({2, 2, 12, 9}, {kBlack, 1.0, 4.0}); });
    for (int i = 0; i < upright.height(); ++i) {
      EXPECT_EQ(Letters(upright, {0, i}, {1, 0}), each.lines) << each.scale;
      EXPECT_EQ(Letters(level, {i, 0}, {0, 1}), each.lines) << each.scale;
    }
    const int top = static_cast<int>(std::lround(2 * each.scale));
    EXPECT_EQ(Letters(dashed, {0, top}, {1, 0}), each.dashes) << each.scale;
  }
}

TEST_F(canvas_painting_test, PaintsOnlyWhatCanBeSeenOfFarShapes) {
  constexpr std::int64_t kFar = std::int64_t{1} << 62U;
  const QImage image = Draw(1, [](painter& p) {
    const line crossing[] = {{{10, -kFar}, {10, kFar}}, {{-kFar, 13}, {kFar, 13}}};
    p.Lines(crossing, {kBlack, 1.0});
    p.StrokeRectangle({-kFar, -kFar, kFar, kFar}, {kRed, 2.0, 10.0});
    p.FillRectangle({kFar, kFar, 10, 10}, kRed);
    p.Text({kFar, 0}, "far", kRed);
  });
  EXPECT_EQ(Letters(image, {0, 5}, {1, 0}), "..........K.....");
  EXPECT_EQ(Letters(image, {3, 0}, {0, 1}), ".............K..");
}

TEST_F(canvas_painting_test, SmoothsSlantingLines) {
  const QImage image = Draw(1, [](painter& p) {
    const line slanting[] = {{{0, 0}, {16, 5}}};
    p.Lines(slanting, {kBlack, 2.0});
  });
  std::set<QRgb> shades;
  for (int x = 0; x < 16; ++x) shades.insert(image.pixel(x, 3));
  EXPECT_GT(shades.size(), 3U);
}

TEST_F(canvas_painting_test, IsTheSameBetweenDevicePixels) {
  const auto draw = [](painter& p) {
    const line slanting[] = {{{0, 0}, {16, 5}}};
    p.Lines(slanting, {kBlack, 2.0});
    p.Text({1, 1}, "M", kBlack);
  };
  EXPECT_EQ(Draw(1.25, draw, 0.25), Draw(1.25, draw));
}

TEST_F(canvas_painting_test, CutsAParagraphAtItsBox) {
  const QImage image = Draw(1, [](painter& p) { p.Paragraph({0, 0, 16, 9}, "MMM\nMMM", kBlack); });
  int last = 0;  // row that is marked
  for (int y = 0; y < 16; ++y) {
    if (Letters(image, {0, y}, {1, 0}) != std::string(16, '.')) last = y;
  }
  EXPECT_EQ(last, 8);
}

TEST_F(canvas_painting_test, MeasuresWhatItDraws) {
  const text_metrics& metrics = desk.Metrics();
  const double line = metrics.LineHeight();
  struct height_case {
    std::string text;
    double width;
    int lines;
  };
  const height_case heights[] = {{"", 100, 1},
                                 {"a", 100, 1},
                                 {"a\n", 100, 2},
                                 {"a\r\nb\rc\nd", 100, 4},
                                 {"aaaa bbbb", metrics.Width("aaaa bb"), 2},
                                 {"aaaabbbb", metrics.Width("aaaa"), 2}};
  for (int round = 0; round < 2; ++round) {
    for (const height_case& each : heights) {
      EXPECT_NEAR(metrics.ParagraphHeight(each.text, each.width), each.lines * line, each.lines)
          << each.text;
    }
    // More texts than are kept.
    for (int i = 0; i < 3000; ++i) metrics.ParagraphHeight(std::to_string(i), 100);
  }
  // A huge word takes no longer than what can be seen of it.
  for (const std::string& tall : {std::string(200'000, 'a'), std::string(200'000, '\n')}) {
    const double height = metrics.ParagraphHeight(tall, 999);
    EXPECT_GE(height, kTallestParagraph);
    EXPECT_LE(height, kTallestParagraph + 2 * line);
  }
  // The tab leads to the place of the eighth "x".
  EXPECT_NEAR(metrics.VisibleWidth("a\tb "), 8 * metrics.Width("x") + metrics.Width("b"), 2.0);
  EXPECT_EQ(metrics.VisibleWidth("   "), 0.0);
  EXPECT_NEAR(metrics.VisibleWidth("MR5  "), metrics.Width("MR5"), 2.0);
  EXPECT_NEAR(metrics.Width("MR5  ") - metrics.Width("MR5"), 2 * metrics.Width(" "), 0.1);
}

}  // namespace
}  // namespace mardel
