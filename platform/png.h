// Pictures in PNG format.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/geometry.h"

namespace mardel {

constexpr std::uint32_t kMostPictureSide = 4096;  // pixels

struct picture {
  int width = 0, height = 0;
  std::vector<colour> pixels;  // row by row from the top, alpha not multiplied in
};

// Nothing when `bytes` are no whole PNG picture or a side is longer than kMostPictureSide.
std::optional<picture> DecodePng(std::string_view bytes);

}  // namespace mardel
