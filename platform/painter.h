// What a design is drawn with: the screen, a picture file, or a test's recorder. All text is in the
// canvas font, "Arial" at kCanvasTextSize.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "platform/geometry.h"

namespace mardel {

constexpr double kCanvasTextSize = 16.0;

// Canvas pixels; lines further below are neither drawn nor measured.
constexpr double kTallestParagraph = 1000.0;

struct stroke {
  colour ink = kBlack;
  double width = 1.0;
  double dash = 0.0;  // length of a dash and of the gap after it; 0 draws a solid line
  bool operator==(const stroke&) const = default;
};

struct line {
  point from;
  point to;
  bool operator==(const line&) const = default;
};

class painter {
 public:
  painter() = default;
  painter(const painter&) = delete;
  painter& operator=(const painter&) = delete;
  virtual ~painter() = default;

  // What is drawn between these belongs to one block, which files that keep parts can say.
  virtual void BeginBlock(std::int64_t /*id*/, std::string_view /*name*/) {}
  virtual void EndBlock() {}

  // Covers the whole canvas.
  virtual void FillBackground(colour ink) = 0;
  virtual void FillRectangle(const rectangle& place, colour ink) = 0;
  virtual void StrokeRectangle(const rectangle& place, const stroke& pen) = 0;
  // The lines share one pen, so that a painter can hand them on in one call.
  virtual void Lines(std::span<const line> lines, const stroke& pen) = 0;
  // One line of text, its top-left corner at `corner`.
  virtual void Text(point corner, std::string_view text, colour ink) = 0;
  // Text with its line breaks, wrapped at the width of `box` and cut at its height.
  virtual void Paragraph(const rectangle& box, std::string_view text, colour ink) = 0;
};

// Measures in canvas pixels, unrounded, in the canvas font at kCanvasTextSize.
class text_metrics {
 public:
  text_metrics() = default;
  text_metrics(const text_metrics&) = delete;
  text_metrics& operator=(const text_metrics&) = delete;
  virtual ~text_metrics() = default;

  // Advance width of one line.
  virtual double Width(std::string_view text) const = 0;
  // Height of one line, whatever its text.
  virtual double LineHeight() const = 0;
  // From the start of one line to the right edge of its last visible mark; 0 for blanks only.
  virtual double VisibleWidth(std::string_view text) const = 0;
  // Height of text with its line breaks when it is wrapped at `width`; of one that is taller than
  // kTallestParagraph, some height from there on.
  virtual double ParagraphHeight(std::string_view text, double width) const = 0;
};

}  // namespace mardel
