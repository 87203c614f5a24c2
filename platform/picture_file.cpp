#include "platform/picture_file.h"

#include "platform/text.h"

namespace mardel {

std::optional<picture_format> FormatOfPicture(std::string_view path) {
  const std::string text = UpperCase(path);
  if (text.ends_with(".PNG")) return picture_format::kPng;
  if (text.ends_with(".SVG")) return picture_format::kSvg;
  if (text.ends_with(".PDF")) return picture_format::kPdf;
  return std::nullopt;
}

}  // namespace mardel
