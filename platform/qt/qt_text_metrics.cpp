#include "platform/qt/qt_text_metrics.h"

#include <algorithm>
#include <limits>

#include "platform/qt/qt_text.h"

namespace mardel {
namespace {

constexpr double kUnwrapped = std::numeric_limits<double>::max();

double EndOf(const QTextLayout& one_line) {
  const QTextLine line = one_line.lineAt(0);
  return line.cursorToX(line.textStart() + line.textLength());
}

}  // namespace

qt_text_metrics::qt_text_metrics(text_layouts& layouts)
    : layouts_(layouts), metrics_(CanvasFont()) {}

double qt_text_metrics::Width(std::string_view text) const {
  return metrics_.horizontalAdvance(OneLine(text));
}

double qt_text_metrics::LineHeight() const {
  return metrics_.height();
}

// What stands before the last tab is laid out, for its tab stops.
double qt_text_metrics::VisibleWidth(std::string_view text) const {
  text = text.substr(0, text.find_last_not_of(" \t") + 1);
  const std::size_t start = text.rfind('\t') + 1;
  const double left =
      start == 0 ? 0.0 : EndOf(layouts_.Paragraph(text.substr(0, start), kUnwrapped));
  QString line = OneLine(text.substr(start));
  while (!line.isEmpty() && line.back().isSpace()) line.chop(1);
  return line.isEmpty() ? left : std::max(0.0, left + metrics_.tightBoundingRect(line).right());
}

double qt_text_metrics::ParagraphHeight(std::string_view text, double width) const {
  return HeightOf(layouts_.Paragraph(text, width));
}

}  // namespace mardel
