#include "platform/qt/qt_text_metrics.h"

#include <algorithm>

#include "platform/qt/qt_text.h"

namespace mardel {

qt_text_metrics::qt_text_metrics(text_layouts& layouts)
    : layouts_(layouts), metrics_(CanvasFont()) {}

double qt_text_metrics::Width(std::string_view text) const {
  return metrics_.horizontalAdvance(OneLine(text));
}

double qt_text_metrics::LineHeight() const {
  return metrics_.height();
}

double qt_text_metrics::VisibleWidth(std::string_view text) const {
  QString line = OneLine(text);
  while (!line.isEmpty() && line.back().isSpace()) line.chop(1);
  return line.isEmpty() ? 0.0 : std::max(0.0, metrics_.tightBoundingRect(line).right());
}

double qt_text_metrics::ParagraphHeight(std::string_view text, double width) const {
  return HeightOf(layouts_.Paragraph(text, width));
}

}  // namespace mardel
