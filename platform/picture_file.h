// Pictures as files, drawn without a display but with the fonts of the window.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/geometry.h"
#include "platform/painter.h"

namespace mardel {

enum class picture_format { kPng, kSvg, kPdf };

// By the ending of the path, in any case; nothing for other endings.
std::optional<picture_format> FormatOfPicture(std::string_view path);

struct picture_frame {
  rectangle area;  // canvas pixels
  double scale = 1.0;
  std::string title = {};  // kept in SVG and PDF
};

class picture_maker {
 public:
  picture_maker() = default;
  picture_maker(const picture_maker&) = delete;
  picture_maker& operator=(const picture_maker&) = delete;
  virtual ~picture_maker() = default;

  virtual const text_metrics& Metrics() const = 0;
  // Whether the canvas font or one with its widths is there; else text is drawn in another one.
  virtual bool HasTextFont() const = 0;
  // The bytes of the file, the same for the same drawing in every locale and time zone; nothing
  // when memory does not suffice. Text stays text in SVG and PDF. A canvas pixel is 1/96 inch
  // there.
  virtual std::optional<std::string> Make(picture_format format, const picture_frame& frame,
                                          const std::function<void(painter&)>& draw) = 0;
};

// Takes the place of the desktop: a process has one or the other, and one of them once. Null when
// a limit is too low, as a line on standard error says.
std::unique_ptr<picture_maker> StartPictures();

}  // namespace mardel
