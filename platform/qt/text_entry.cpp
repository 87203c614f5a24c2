#include "platform/qt/text_entry.h"

#include <QTextDocument>
#include <algorithm>

#include "platform/qt/qt_text.h"
#include "platform/text.h"

namespace mardel {
namespace {

constexpr int kMostCharacters = 1 << 20;
constexpr std::size_t kMostShown = 1 << 18;  // bytes, which may be as many lines

bool IsLineBreak(QChar c) {
  return c == u'\n' || c == u'\r' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

bool HasHugeWord(const QString& text) {
  constexpr int kHuge = 10'000;
  int size = 0;
  return std::any_of(text.begin(), text.end(), [&size](QChar c) {
    size = c.isSpace() ? 0 : size + 1;
    return size > kHuge;
  });
}

QString Storable(QStringView typed) {
  return ToQt(DropUnstorable(FromQt(typed.toString())));
}

QString StorableLine(QStringView typed) {
  QString line = Storable(typed);
  line.removeIf(IsLineBreak);
  return line;
}

}  // namespace

QValidator::State one_line_filter::validate(QString& typed, int& cursor) const {
  const QString kept = StorableLine(typed);
  if (kept != typed) {
    const qsizetype before = StorableLine(QStringView(typed).left(cursor)).size();
    cursor = static_cast<int>(std::min(before, kept.size()));
    typed = kept;
  }
  return Acceptable;
}

text_field::text_field(const std::string& text, QWidget& parent) : QLineEdit(&parent) {
  setMaxLength(kMostCharacters);
  setValidator(new one_line_filter(this));
  SetText(text);
}

void text_field::SetText(const std::string& text) {
  given_ = text;
  setText(ToQt(text));
  shown_ = this->text();
  setCursorPosition(0);
}

std::string text_field::Text() const {
  return this->text() == shown_ ? given_ : FromQt(this->text());
}

text_editor::text_editor(const std::string& text, QWidget& parent) : QPlainTextEdit(&parent) {
  setTabChangesFocus(true);
  SetText(text);
}

void text_editor::SetText(const std::string& text) {
  given_ = text;
  const std::string shown = CutMiddle(text, kMostShown);
  if (shown != text) setReadOnly(true);
  const QString lines = LinesToQt(shown);
  // Where lines may break between words only, a word takes the square of its length.
  setWordWrapMode(HasHugeWord(lines) ? QTextOption::WrapAnywhere
                                     : QTextOption::WrapAtWordBoundaryOrAnywhere);
  setPlainText(lines);
  shown_ = document()->toRawText();
}

// Not toPlainText(), which turns no-break spaces into spaces.
std::string text_editor::Text() const {
  QString text = document()->toRawText();
  if (text == shown_) return given_;
  for (QChar& c : text) {
    if (IsLineBreak(c)) c = u'\n';
  }
  return DropUnstorable(FromQt(text));
}

void text_editor::insertFromMimeData(const QMimeData* pasted) {
  if (!pasted->hasText()) return;
  insertPlainText(Storable(pasted->text()));
  ensureCursorVisible();
}

}  // namespace mardel
