#include "platform/qt/qt_text.h"

#include <QTextDocument>

#include "platform/text.h"

using namespace Qt::StringLiterals;

namespace mardel {
namespace {

constexpr std::size_t kMostTooltip = 2000;  // bytes
constexpr qsizetype kTooltipWidth = 80;     // characters

// Breaks at the last blank of each row, or in a word that fills one.
QString InRows(QString text) {
  for (qsizetype start = 0; text.size() - start > kTooltipWidth;) {
    const qsizetype blank = text.lastIndexOf(u' ', start + kTooltipWidth);
    if (blank > start) {
      text[blank] = u'\n';
      start = blank + 1;
    } else {
      start += kTooltipWidth;
      text.insert(start, u'\n');
      ++start;
    }
  }
  return text;
}

}  // namespace

QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string FromQt(const QString& text) {
  return text.toStdString();
}

QString LinesToQt(std::string_view text) {
  QString lines = ToQt(text);
  lines.replace("\r\n"_L1, "\n"_L1);
  lines.replace(u'\r', u'\n');
  return lines;
}

QString OneLine(std::string_view text) {
  QString line = ToQt(text);
  for (QChar& c : line) {
    if (c.category() == QChar::Other_Control || c == QChar::LineSeparator ||
        c == QChar::ParagraphSeparator) {
      c = u' ';
    }
  }
  return line;
}

QString ButtonText(std::string_view text) {
  return OneLine(text).replace(u'&', "&&"_L1);
}

QString TooltipText(std::string_view text) {
  const QString rows = InRows(OneLine(CutMiddle(text, kMostTooltip)));
  if (!Qt::mightBeRichText(rows)) return rows;
  return "<qt>"_L1 + rows.toHtmlEscaped() + "</qt>"_L1;
}

// The toolkit's own text of it loses bytes that are no UTF-8.
std::string LocalPath(const QUrl& url) {
  const QString path = url.toLocalFile();
  if (!path.contains(QChar::ReplacementCharacter)) return FromQt(path);
  return QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()).toStdString();
}

QString TitleText(std::string_view text) {
  return OneLine(text).replace("[*]"_L1, "[*][*]"_L1);
}

}  // namespace mardel
