#include "platform/svg_painter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

#include "platform/text.h"
#include "platform/xml.h"

namespace mardel {
namespace {

constexpr double kAscent = 0.905 * kCanvasTextSize;  // of the canvas font
constexpr std::size_t kMostLine = 4096;              // bytes of a line that can be on the canvas
constexpr double kFar = 1 << 20;                     // from the origin, beyond what is ever shown

// Up to two decimals, with a point in every locale.
std::string Number(double value) {
  const auto hundredths = static_cast<std::int64_t>(std::llround(value * 100));
  std::string digits = std::to_string(hundredths / 100);
  if (hundredths < 0 && hundredths > -100) digits = "-0";
  const std::int64_t rest = std::abs(hundredths % 100);
  if (rest == 0) return digits;
  digits += rest < 10 ? ".0" : ".";
  digits += std::to_string(rest % 10 == 0 ? rest / 10 : rest);
  return digits;
}

std::string Attribute(std::string_view name, std::string_view value) {
  return " " + std::string(name) + "=\"" + EscapeXml(DropUnstorable(value)) + "\"";
}

std::string Ink(std::string_view name, colour ink) {
  std::array<char, 8> digits{};
  std::snprintf(digits.data(), digits.size(), "#%02x%02x%02x", static_cast<unsigned>(RedOf(ink)),
                static_cast<unsigned>(GreenOf(ink)), static_cast<unsigned>(BlueOf(ink)));
  std::string attributes = Attribute(name, digits.data());
  if (AlphaOf(ink) == 255) return attributes;
  return attributes + Attribute(std::string(name) + "-opacity", Number(AlphaOf(ink) / 255.0));
}

std::string Element(std::string_view name, std::string_view text) {
  const std::string tag(name);
  return "<" + tag + ">" + EscapeXml(DropUnstorable(text)) + "</" + tag + ">\n";
}

struct spot {
  double x = 0, y = 0;
};

spot ToSpot(point at) {
  return {static_cast<double>(at.x), static_cast<double>(at.y)};
}

// Where a line ends, or where it becomes far, which viewers can't follow. `middle` is added.
std::string LineEnd(spot end, spot other, double middle) {
  const auto cut = [](double from, double to) {
    return std::abs(from) > kFar ? (std::abs(from) - kFar) / std::abs(from - to) : 0;
  };
  const double part = std::max(cut(end.x, other.x), cut(end.y, other.y));
  return Number(end.x + part * (other.x - end.x) + middle) + " " +
         Number(end.y + part * (other.y - end.y) + middle);
}

// The part of a line that is as wide as `width`, at least one character: up to a blank if it can.
std::size_t FittingSize(std::string_view text, double width, const text_metrics& metrics) {
  if (metrics.Width(text) <= width) return text.size();
  std::size_t fits = 0, blank = 0;
  for (std::size_t end = 1; end <= text.size(); ++end) {
    if (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) continue;
    if (fits > 0 && metrics.Width(text.substr(0, end)) > width) break;
    fits = end;
    if (text[end - 1] == ' ') blank = end;
  }
  return blank > 0 ? blank : fits;
}

}  // namespace

svg_painter::svg_painter(const rectangle& area, const text_metrics& metrics)
    : area_(area), metrics_(metrics) {}

bool svg_painter::IsVisible(double left, double top, double right, double bottom) const {
  const spot first = ToSpot({area_.x, area_.y});
  const spot last = ToSpot({area_.x + area_.width, area_.y + area_.height});
  return left <= last.x && top <= last.y && right >= first.x && bottom >= first.y;
}

bool svg_painter::IsVisible(const rectangle& place) const {
  const auto [left, top] = ToSpot({place.x, place.y});
  const auto [width, height] = ToSpot({place.width, place.height});
  return IsVisible(left, top, left + width, top + height);
}

void svg_painter::EndFill() {
  if (!fill_.empty()) shapes_ += "<path d=\"" + fill_ + "\"" + Ink("fill", fill_ink_) + "/>\n";
  fill_.clear();
}

void svg_painter::BeginBlock(std::int64_t id, std::string_view name) {
  EndFill();
  std::string unique = "block-" + std::to_string(id);
  while (!ids_.insert(unique).second) unique += "-again";
  shapes_ += "<g" + Attribute("id", unique) + ">\n" + Element("title", name);
}

void svg_painter::EndBlock() {
  EndFill();
  shapes_ += "</g>\n";
}

void svg_painter::FillBackground(colour ink) {
  FillRectangle(area_, ink);
}

void svg_painter::FillRectangle(const rectangle& place, colour ink) {
  if (!IsVisible(place)) return;
  if (ink != fill_ink_) EndFill();
  fill_ink_ = ink;
  const auto number = [](std::int64_t value) { return std::to_string(value); };
  fill_ += "M" + number(place.x) + " " + number(place.y) + "h" + number(place.width) + "v" +
           number(place.height) + "h" + number(-place.width) + "z";
}

void svg_painter::StrokeRectangle(const rectangle& place, const stroke& pen) {
  if (!IsVisible(place)) return;
  const point corners[] = {{place.x, place.y},
                           {place.x + place.width, place.y},
                           {place.x + place.width, place.y + place.height},
                           {place.x, place.y + place.height}};
  const line sides[] = {{corners[0], corners[1]},
                        {corners[1], corners[2]},
                        {corners[3], corners[2]},
                        {corners[0], corners[3]}};
  Lines(sides, pen);
}

void svg_painter::Lines(std::span<const line> lines, const stroke& pen) {
  EndFill();
  // The middle of the pixels that the points name, where the width is odd.
  const double middle = pen.width / 2 - std::floor(pen.width / 2);
  std::string path;
  for (const line& each : lines) {
    const spot from = ToSpot(each.from), to = ToSpot(each.to);
    const auto [left, right] = std::minmax(from.x, to.x);
    const auto [top, bottom] = std::minmax(from.y, to.y);
    if (!IsVisible(left, top, right, bottom)) continue;
    path += "M" + LineEnd(from, to, middle) + "L" + LineEnd(to, from, middle);
  }
  if (path.empty()) return;
  shapes_ += "<path d=\"" + path + "\"" + Ink("stroke", pen.ink) +
             Attribute("stroke-width", Number(pen.width));
  if (pen.dash > 0) shapes_ += Attribute("stroke-dasharray", Number(pen.dash));
  shapes_ += "/>\n";
}

void svg_painter::Text(point corner, std::string_view text, colour ink) {
  AddLine(static_cast<double>(corner.x), static_cast<double>(corner.y), text, ink);
}

void svg_painter::AddLine(double x, double y, std::string_view text, colour ink) {
  EndFill();
  text = text.substr(0, kMostLine);
  const double width = metrics_.Width(text);
  if (metrics_.VisibleWidth(text) <= 0) return;
  if (!IsVisible(x, y, x + width, y + metrics_.LineHeight())) return;
  std::string shown = DropUnstorable(text);
  std::ranges::replace_if(shown, [](char c) { return c == '\n' || c == '\r' || c == '\t'; }, ' ');
  shapes_ += "<text" + Attribute("x", Number(x)) + Attribute("y", Number(y + kAscent)) +
             Attribute("textLength", Number(width));
  if (ink != kBlack) shapes_ += Ink("fill", ink);
  shapes_ += ">" + EscapeXml(shown) + "</text>\n";
}

void svg_painter::Paragraph(const rectangle& box, std::string_view text, colour ink) {
  if (!IsVisible(box)) return;
  const std::string lines = ReplaceLineBreaks(text, "\n");
  std::string_view rest = lines;
  const auto width = static_cast<double>(box.width);
  for (double top = 0; top < kTallestParagraph && top < static_cast<double>(box.height);) {
    const std::size_t line_end = std::min(rest.find('\n'), rest.size());
    const std::size_t size = FittingSize(rest.substr(0, line_end), width, metrics_);
    AddLine(static_cast<double>(box.x), static_cast<double>(box.y) + top, rest.substr(0, size),
            ink);
    top += metrics_.LineHeight();
    if (size == rest.size()) break;
    rest.remove_prefix(size == line_end ? size + 1 : size);
  }
}

std::string svg_painter::Finish(std::string_view title, std::string_view description,
                                double scale) {
  EndFill();
  const auto length = [&](std::int64_t pixels) {
    return Number(static_cast<double>(pixels) * scale);
  };
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         "<svg xmlns=\"http://www.w3.org/2000/svg\"" +
         Attribute("width", length(area_.width)) + Attribute("height", length(area_.height)) +
         Attribute("viewBox", std::to_string(area_.x) + " " + std::to_string(area_.y) + " " +
                                  std::to_string(area_.width) + " " +
                                  std::to_string(area_.height)) +
         Attribute("font-family", "Arial, 'Liberation Sans', Helvetica, sans-serif") +
         Attribute("font-size", Number(kCanvasTextSize)) + " xml:space=\"preserve\">\n" +
         Element("title", title) + Element("desc", description) + shapes_ + "</svg>\n";
}

}  // namespace mardel
