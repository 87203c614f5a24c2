// Text laid out in the canvas font, kept from one drawing of the canvas to the next.
#pragma once

#include <QFont>
#include <QTextLayout>
#include <QTextOption>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/hash.h"

namespace mardel {

// "Arial" at kCanvasTextSize.
QFont CanvasFont();

// What is kept is bounded. Needs a running QGuiApplication.
class text_layouts {
 public:
  text_layouts();

  // A layout stays valid until the next call.
  const QTextLayout& Line(std::string_view text);
  // Line breaks are honoured; lines wider than `width` wrap, a long word anywhere. Ends below
  // kTallestParagraph.
  const QTextLayout& Paragraph(std::string_view text, double width);

 private:
  struct kept_layout {
    double width = 0;
    std::unique_ptr<QTextLayout> layout;
  };

  const QTextLayout& Find(std::string_view text, double width, const QTextOption& option);
  void MakeRoom(std::size_t bytes);

  QFont font_;
  QTextOption line_option_;
  QTextOption paragraph_option_;
  std::unordered_map<std::string, kept_layout, text_hash, std::equal_to<>> kept_;
  std::size_t kept_bytes_ = 0;
};

// Of all lines together.
double HeightOf(const QTextLayout& layout);

}  // namespace mardel
