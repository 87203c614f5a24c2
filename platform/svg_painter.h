// Draws into the text of an SVG file.
#pragma once

#include <set>
#include <string>
#include <string_view>

#include "platform/painter.h"

namespace mardel {

// A canvas pixel is 1/96 inch at scale 1. Text stays text, in the canvas font or one like it, and
// as wide as `metrics` says whatever font shows it. Every block is a group "block-ID" with its name
// as the title. What lies wholly outside the area is left out.
class svg_painter : public painter {
 public:
  svg_painter(const rectangle& area, const text_metrics& metrics);

  void BeginBlock(std::int64_t id, std::string_view name) override;
  void EndBlock() override;
  void FillBackground(colour ink) override;
  void FillRectangle(const rectangle& place, colour ink) override;
  void StrokeRectangle(const rectangle& place, const stroke& pen) override;
  void Lines(std::span<const line> lines, const stroke& pen) override;
  void Text(point corner, std::string_view text, colour ink) override;
  void Paragraph(const rectangle& box, std::string_view text, colour ink) override;

  // The whole file.
  std::string Finish(std::string_view title, std::string_view description, double scale);

 private:
  bool IsVisible(double left, double top, double right, double bottom) const;
  bool IsVisible(const rectangle& place) const;
  // Fills of one colour that follow each other are one path.
  void EndFill();
  void AddLine(double x, double y, std::string_view text, colour ink);

  rectangle area_;
  const text_metrics& metrics_;
  std::string shapes_;
  std::string fill_;  // the path of the fill that goes on
  colour fill_ink_ = kBlack;
  std::set<std::string, std::less<>> ids_;
};

}  // namespace mardel
