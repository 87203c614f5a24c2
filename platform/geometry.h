// Places and colours on the canvas. Lengths are canvas pixels, origin top-left, y downwards.
#pragma once

#include <cstdint>

namespace mardel {

struct point {
  std::int64_t x = 0;
  std::int64_t y = 0;
  bool operator==(const point&) const = default;
};

struct rectangle {
  std::int64_t x = 0;
  std::int64_t y = 0;
  std::int64_t width = 0;
  std::int64_t height = 0;
  bool operator==(const rectangle&) const = default;
};

// Red in the low byte, then green, blue and alpha.
using colour = std::uint32_t;

constexpr colour Rgba(int red, int green, int blue, int alpha = 255) {
  return static_cast<colour>(red) | static_cast<colour>(green) << 8U |
         static_cast<colour>(blue) << 16U | static_cast<colour>(alpha) << 24U;
}
constexpr int RedOf(colour c) {
  return static_cast<int>(c & 0xFFU);
}
constexpr int GreenOf(colour c) {
  return static_cast<int>(c >> 8U & 0xFFU);
}
constexpr int BlueOf(colour c) {
  return static_cast<int>(c >> 16U & 0xFFU);
}
constexpr int AlphaOf(colour c) {
  return static_cast<int>(c >> 24U);
}
constexpr colour WithAlpha(colour c, int alpha) {
  return (c & 0x00FFFFFFU) | static_cast<colour>(alpha) << 24U;
}

constexpr colour kBlack = Rgba(0, 0, 0);
constexpr colour kRed = Rgba(255, 0, 0);

constexpr std::int64_t kCanvasWidth = 1920;
constexpr std::int64_t kCanvasHeight = 1080;

}  // namespace mardel
