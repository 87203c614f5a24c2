// Measures of text in the canvas font.
#pragma once

#include <QFontMetricsF>

#include "platform/painter.h"
#include "platform/qt/text_layouts.h"

namespace mardel {

class qt_text_metrics : public text_metrics {
 public:
  // Paragraphs are measured by the layouts that they are drawn with. `layouts` must outlive this.
  explicit qt_text_metrics(text_layouts& layouts);

  double Width(std::string_view text) const override;
  double LineHeight() const override;
  double VisibleWidth(std::string_view text) const override;
  double ParagraphHeight(std::string_view text, double width) const override;

 private:
  text_layouts& layouts_;
  QFontMetricsF metrics_;
};

}  // namespace mardel
