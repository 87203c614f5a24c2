#include "platform/png.h"

#include <png.h>

#include <cstddef>
#include <memory>

namespace mardel {

std::optional<picture> DecodePng(std::string_view bytes) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  const std::unique_ptr<png_image, decltype(&png_image_free)> freer(&image, &png_image_free);
  if (png_image_begin_read_from_memory(&image, bytes.data(), bytes.size()) == 0) return {};
  if (image.width > kMostPictureSide || image.height > kMostPictureSide) return {};

  image.format = PNG_FORMAT_RGBA;
  std::vector<png_byte> rgba(PNG_IMAGE_SIZE(image));
  if (png_image_finish_read(&image, nullptr, rgba.data(), 0, nullptr) == 0) return {};

  picture decoded{static_cast<int>(image.width), static_cast<int>(image.height), {}};
  decoded.pixels.reserve(rgba.size() / 4);
  for (std::size_t i = 0; i < rgba.size(); i += 4) {
    decoded.pixels.push_back(Rgba(rgba[i], rgba[i + 1], rgba[i + 2], rgba[i + 3]));
  }
  return decoded;
}

}  // namespace mardel
