#include <algorithm>
#include <cmath>

#include "platform/desktop.h"
#include "platform/text.h"

namespace mardel {
namespace {

constexpr double kCharacterWidth = 8.0;
constexpr double kLineHeight = 18.0;

class fixed_text_metrics : public text_metrics {
 public:
  double Width(std::string_view text) const override {
    return kCharacterWidth * static_cast<double>(CountCharacters(text));
  }
  double LineHeight() const override { return kLineHeight; }
  double VisibleWidth(std::string_view text) const override {
    return Width(text.substr(0, text.find_last_not_of(" \t") + 1));
  }
  // Wraps between any two characters.
  double ParagraphHeight(std::string_view text, double width) const override {
    const double per_line = std::max(1.0, std::floor(width / kCharacterWidth));
    const std::string lines = ReplaceLineBreaks(text, "\n");
    double count = 0;
    for (std::size_t start = 0; start <= lines.size();) {
      const std::size_t end = std::min(lines.find('\n', start), lines.size());
      const std::size_t characters =
          CountCharacters(std::string_view(lines).substr(start, end - start));
      count += std::max(1.0, std::ceil(static_cast<double>(characters) / per_line));
      start = end + 1;
    }
    return count * kLineHeight;
  }
};

}  // namespace

std::unique_ptr<text_metrics> FixedTextMetrics() {
  return std::make_unique<fixed_text_metrics>();
}

}  // namespace mardel
