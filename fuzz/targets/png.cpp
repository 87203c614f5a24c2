// Pictures as a file brings them.
#include "platform/png.h"

#include <png.h>
#include <zlib.h>

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
  png_image_write_to_memory(&image, bytes.data(), &size, 0, whole.pixels.data(), 0, nullptr);
  return bytes.substr(0, size);
}

std::size_t BigEndian(std::string_view bytes) {
  std::size_t value = 0;
  for (const char c : bytes.substr(0, 4)) value = value << 8U | static_cast<unsigned char>(c);
  return value;
}

// With the checksum of each chunk as it should be, which made-up ones never are.
std::string WithChecksums(std::string_view input) {
  std::string bytes(input);
  for (std::size_t at = 8; at + 12 <= bytes.size();) {  // from behind the signature
    const std::size_t size = 4 + BigEndian(std::string_view(bytes).substr(at));  // with the type
    if (size > bytes.size() - at - 8) break;
    const auto* data = reinterpret_cast<const Bytef*>(bytes.data()) + at + 4;
    const uLong sum = crc32(0, data, static_cast<uInt>(size));
    at += 4 + size;
    for (const unsigned shift : {24U, 16U, 8U, 0U}) bytes[at++] = static_cast<char>(sum >> shift);
  }
  return bytes;
}

}  // namespace

void TryInput(std::string_view input) {
  DecodePng(input);
  const std::optional<picture> decoded = DecodePng(WithChecksums(input));
  if (!decoded) return;
  const auto width = static_cast<std::size_t>(decoded->width);
  const auto height = static_cast<std::size_t>(decoded->height);
  Require(width <= kMostPictureSide && height <= kMostPictureSide, "sides within the bounds");
  Require(width > 0 && decoded->pixels.size() == width * height, "a colour for each pixel");
  if (width * height > 4096) return;  // which would take too long
  const std::optional<picture> again = DecodePng(Encode(*decoded));
  Require(again && again->pixels == decoded->pixels, "the same picture again");
}

}  // namespace mardel
