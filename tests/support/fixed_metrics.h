// Metrics whose results can be worked out by hand: each byte of text is 8 pixels wide, a line 18
// high. A paragraph lacks a fraction of a pixel, so that it shows who rounds which way.
#pragma once

#include <algorithm>
#include <string_view>

#include "platform/painter.h"

namespace mardel {

class byte_metrics : public text_metrics {
 public:
  double Width(std::string_view text) const override { return 8.0 * Size(text); }
  double LineHeight() const override { return 18.0; }
  double VisibleWidth(std::string_view text) const override {
    const std::size_t last = text.find_last_not_of(' ');
    return last == std::string_view::npos ? 0.0 : 8.0 * static_cast<double>(last + 1);
  }
  // Lines are never wrapped here.
  double ParagraphHeight(std::string_view text, double /*width*/) const override {
    return 18.0 * static_cast<double>(1 + std::count(text.begin(), text.end(), '\n')) - 0.4;
  }

 private:
  static double Size(std::string_view text) { return static_cast<double>(text.size()); }
};

}  // namespace mardel
