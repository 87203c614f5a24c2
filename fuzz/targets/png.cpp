// Pictures as a file brings them.
#include "platform/png.h"

#include <png.h>

#include "fuzz/target.h"

namespace mardel {
namespace {

std::string Encode(const picture& whole) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width = static_cast<png_uint_32>(whole.width);
  image.height = static_cast<png_uint_32>(whole.height);
  image.format = PNG_FORMAT_RGBA;
  png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(image);
  std::string bytes(size, '\0');
  const int written =
      png_image_write_to_memory(&image, bytes.data(), &size, 0, whole.pixels.data(), 0, nullptr);
  Require(written != 0, "a decoded picture is encoded");
  return bytes.substr(0, size);
}

}  // namespace

void TryInput(std::string_view input) {
  const std::optional<picture> decoded = DecodePng(input);
  if (!decoded) return;
  constexpr int kMost = kMostPictureSide;
  Require(decoded->width > 0 && decoded->width <= kMost, "a width within the bounds");
  Require(decoded->height > 0 && decoded->height <= kMost, "a height within the bounds");
  const std::size_t area =
      static_cast<std::size_t>(decoded->width) * static_cast<std::size_t>(decoded->height);
  Require(decoded->pixels.size() == area, "a colour for each pixel");
  constexpr std::size_t kSmall = 4096;  // larger ones take too long
  if (area > kSmall) return;
  const std::optional<picture> again = DecodePng(Encode(*decoded));
  Require(again && again->pixels == decoded->pixels, "the same picture again");
}

}  // namespace mardel
