#include "platform/qt/text_layouts.h"

#include <QFontMetricsF>
#include <algorithm>
#include <utility>

#include "platform/painter.h"
#include "platform/qt/qt_text.h"

namespace mardel {
namespace {

constexpr double kWidest = 1e7;  // the toolkit's coordinates of text overflow at 2^25
constexpr double kLineWidth = -1;
constexpr std::size_t kMostTexts = 2048;
constexpr std::size_t kMostBytes = 1 << 18;
constexpr std::size_t kMostParagraph = 1 << 20;  // bytes, many times what can be seen
constexpr int kMostLines = static_cast<int>(kTallestParagraph);  // each is a pixel high or more

// What of a paragraph can be on the canvas.
std::string_view Seen(std::string_view text) {
  text = text.substr(0, kMostParagraph);
  int lines = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if ((text[at] == '\n' || text[at] == '\r') && ++lines > 2 * kMostLines)
      return text.substr(0, at);
  }
  return text;
}

std::unique_ptr<QTextLayout> LayOut(const QString& text, const QFont& font, double width,
                                    const QTextOption& option) {
  auto layout = std::make_unique<QTextLayout>(text, font);
  layout->setTextOption(option);
  layout->setCacheEnabled(true);
  layout->beginLayout();
  double top = 0;
  // Wrapping a long word looks at all that is left of it for each line.
  while (top < kTallestParagraph) {
    QTextLine line = layout->createLine();
    if (!line.isValid()) break;
    line.setLineWidth(width);
    line.setPosition({0, top});
    top += line.height();
  }
  layout->endLayout();
  return layout;
}

}  // namespace

QFont CanvasFont() {
  QFont font(QStringLiteral("Arial"));
  font.setPixelSize(static_cast<int>(kCanvasTextSize));
  // The same widths at every scale factor, so that a block is as wide on every screen.
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

text_layouts::text_layouts() : font_(CanvasFont()) {
  // Notes of a script that runs to the left stay within the place that a click is tested against.
  paragraph_option_.setAlignment(Qt::AlignLeft | Qt::AlignAbsolute);
  paragraph_option_.setTextDirection(Qt::LeftToRight);
  paragraph_option_.setTabStopDistance(8 * QFontMetricsF(font_).horizontalAdvance(u'x'));
  line_option_ = paragraph_option_;
  line_option_.setWrapMode(QTextOption::NoWrap);
  paragraph_option_.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
}

const QTextLayout& text_layouts::Line(std::string_view text) {
  return Find(text, kLineWidth, line_option_);
}

const QTextLayout& text_layouts::Paragraph(std::string_view text, double width) {
  return Find(Seen(text), std::clamp(width, 1.0, kWidest), paragraph_option_);
}

const QTextLayout& text_layouts::Find(std::string_view text, double width,
                                      const QTextOption& option) {
  const auto found = kept_.find(text);
  if (found != kept_.end() && found->second.width == width) return *found->second.layout;
  const bool is_line = width == kLineWidth;
  const QString shown =
      is_line ? OneLine(text) : LinesToQt(text).replace(u'\n', QChar::LineSeparator);
  auto layout = LayOut(shown, font_, is_line ? kWidest : width, option);
  if (found != kept_.end()) {
    found->second = {width, std::move(layout)};
    return *found->second.layout;
  }
  MakeRoom(text.size());
  const auto added = kept_.emplace(text, kept_layout{width, std::move(layout)}).first;
  return *added->second.layout;
}

void text_layouts::MakeRoom(std::size_t bytes) {
  if (kept_.size() >= kMostTexts || kept_bytes_ + bytes > kMostBytes) {
    kept_.clear();
    kept_bytes_ = 0;
  }
  kept_bytes_ += bytes;
}

double HeightOf(const QTextLayout& layout) {
  const int lines = layout.lineCount();
  return lines == 0 ? 0.0 : layout.lineAt(lines - 1).rect().bottom();
}

}  // namespace mardel
