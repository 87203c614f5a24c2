#include "editor/drawn_extent.h"

#include <algorithm>

#include "platform/text.h"

namespace mardel {
namespace {

double Real(std::int64_t length) {
  return static_cast<double>(length);
}

// Draws nothing but remembers where something would be.
class extent_painter : public painter {
 public:
  explicit extent_painter(const text_metrics& metrics) : metrics_(metrics) {}

  void FillBackground(colour /*ink*/) override {}

  void FillRectangle(const rectangle& place, colour /*ink*/) override {
    Cover(Real(place.x), Real(place.y), Real(place.width), Real(place.height), 0);
  }

  void StrokeRectangle(const rectangle& place, const stroke& pen) override {
    Cover(Real(place.x), Real(place.y), Real(place.width), Real(place.height), pen.width);
  }

  void Lines(std::span<const line> lines, const stroke& pen) override {
    for (const auto& [from, to] : lines) {
      Cover(Real(from.x), Real(from.y), Real(to.x) - Real(from.x), Real(to.y) - Real(from.y),
            pen.width);
    }
  }

  void Text(point corner, std::string_view text, colour /*ink*/) override {
    Cover(Real(corner.x), Real(corner.y), metrics_.Width(text), metrics_.LineHeight(), 0);
  }

  void Paragraph(const rectangle& box, std::string_view text, colour /*ink*/) override {
    Cover(Real(box.x), Real(box.y), std::min(Real(box.width), WidestLine(text)), Real(box.height),
          0);
  }

  std::optional<extent> covered;

 private:
  // `width` and `height` may be negative; the pen reaches out half its width on each side.
  void Cover(double x, double y, double width, double height, double pen) {
    const extent place{std::min(x, x + width) - pen / 2, std::min(y, y + height) - pen / 2,
                       std::max(x, x + width) + pen / 2, std::max(y, y + height) + pen / 2};
    if (!covered) covered = place;
    covered = {std::min(covered->left, place.left), std::min(covered->top, place.top),
               std::max(covered->right, place.right), std::max(covered->bottom, place.bottom)};
  }

  double WidestLine(std::string_view text) const {
    constexpr double kTabStop = 80;  // a tab is never wider
    const std::string lines = ReplaceLineBreaks(text, "\n");
    double widest = 0;
    for (std::size_t start = 0; start <= lines.size();) {
      const std::size_t end = std::min(lines.find('\n', start), lines.size());
      const std::string_view row = std::string_view(lines).substr(start, end - start);
      const double tabs = static_cast<double>(std::ranges::count(row, '\t'));
      widest = std::max(widest, metrics_.Width(row) + tabs * kTabStop);
      start = end + 1;
    }
    return widest;
  }

  const text_metrics& metrics_;
};

}  // namespace

std::optional<extent> DrawnExtent(const design& document, const drawing_context& context) {
  extent_painter measured(context.metrics);
  DrawDesign(measured, document, {context.libraries, context.metrics, grid::kHidden});
  return measured.covered;
}

}  // namespace mardel
