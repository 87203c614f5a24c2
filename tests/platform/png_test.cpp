#include "platform/png.h"

#include <gtest/gtest.h>
#include <png.h>

#include <string>
#include <vector>

namespace mardel {
namespace {

using samples = std::vector<png_byte>;

std::string Encode(png_uint_32 format, const point& size, const samples& pixels) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width = static_cast<png_uint_32>(size.x);
  image.height = static_cast<png_uint_32>(size.y);
  image.format = format;
  std::string bytes(10'000, '\0');
  png_alloc_size_t used = bytes.size();
  png_image_write_to_memory(&image, bytes.data(), &used, 0, pixels.data(), 0, nullptr);
  return bytes.substr(0, used);
}

// "width x height" and the pixels as alpha, blue, green, red
std::string Describe(const std::optional<picture>& decoded) {
  if (!decoded) return "nothing";
  std::string text = std::to_string(decoded->width) + "x" + std::to_string(decoded->height);
  for (const colour pixel : decoded->pixels) {
    char digits[10];
    std::snprintf(digits, sizeof digits, " %08x", pixel);
    text += digits;
  }
  return text;
}

const samples kFourPixels = {1, 2, 3, 255, 10, 20, 30, 128, 0, 0, 0, 0, 9, 8, 7, 1};

TEST(Png, DecodesPixels) {
  EXPECT_EQ(Describe(DecodePng(Encode(PNG_FORMAT_RGBA, {2, 2}, kFourPixels))),
            "2x2 ff030201 801e140a 00000000 01070809");
}

TEST(Png, RefusesBytesThatAreNoWholePicture) {
  const std::string whole = Encode(PNG_FORMAT_RGBA, {2, 2}, kFourPixels);
  for (std::size_t at = 0; at < whole.find("IEND") - 4; ++at) {  // before that chunk's size
    EXPECT_FALSE(DecodePng(whole.substr(0, at))) << at;
    std::string damaged = whole;
    damaged[at] = static_cast<char>(damaged[at] ^ 0x55);
    DecodePng(damaged);  // whatever it gives, it ends well
  }
}

}  // namespace
}  // namespace mardel
