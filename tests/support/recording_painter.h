// Keeps what was drawn as one line of text a shape.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "platform/painter.h"

namespace mardel {

inline std::string Describe(colour ink) {
  std::ostringstream out;
  out << RedOf(ink) << ',' << GreenOf(ink) << ',' << BlueOf(ink) << ',' << AlphaOf(ink);
  return out.str();
}

inline std::string Describe(const stroke& pen) {
  std::ostringstream out;
  out << Describe(pen.ink) << " width " << pen.width;
  if (pen.dash != 0) out << " dash " << pen.dash;
  return out.str();
}

inline std::string Describe(const rectangle& r) {
  std::ostringstream out;
  out << '(' << r.x << ',' << r.y << ' ' << r.width << 'x' << r.height << ')';
  return out.str();
}

inline std::string Describe(point p) {
  return '(' + std::to_string(p.x) + ',' + std::to_string(p.y) + ')';
}

inline std::string Describe(const line& l) {
  return Describe(l.from) + '-' + Describe(l.to);
}

class recording_painter : public painter {
 public:
  std::vector<std::string> shapes;

  void FillBackground(colour ink) override { shapes.push_back("background " + Describe(ink)); }
  void FillRectangle(const rectangle& place, colour ink) override {
    shapes.push_back("fill " + Describe(place) + ' ' + Describe(ink));
  }
  void StrokeRectangle(const rectangle& place, const stroke& pen) override {
    shapes.push_back("stroke " + Describe(place) + ' ' + Describe(pen));
  }
  void Lines(std::span<const line> lines, const stroke& pen) override {
    for (const line& l : lines) shapes.push_back("line " + Describe(l) + ' ' + Describe(pen));
  }
  void Text(point corner, std::string_view text, colour ink) override {
    std::ostringstream out;
    out << "text (" << corner.x << ',' << corner.y << ") " << text << ' ' << Describe(ink);
    shapes.push_back(out.str());
  }
  void Paragraph(const rectangle& box, std::string_view text, colour ink) override {
    shapes.push_back("paragraph " + Describe(box) + ' ' + std::string(text) + ' ' + Describe(ink));
  }
};

}  // namespace mardel
