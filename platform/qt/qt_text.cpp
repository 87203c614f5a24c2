#include "platform/qt/qt_text.h"

namespace mardel {

QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string FromQt(const QString& text) {
  return text.toStdString();
}

QString LinesToQt(std::string_view text) {
  QString lines = ToQt(text);
  lines.replace("\r\n", "\n");
  lines.replace('\r', '\n');
  return lines;
}

QString OneLine(std::string_view text) {
  QString line = ToQt(text);
  for (QChar& c : line) {
    if (c.category() == QChar::Other_Control || c == QChar::LineSeparator ||
        c == QChar::ParagraphSeparator) {
      c = ' ';
    }
  }
  return line;
}

QString ButtonText(std::string_view text) {
  return OneLine(text).replace("&", "&&");
}

QString TooltipText(std::string_view text) {
  return "<qt>" + OneLine(text).toHtmlEscaped() + "</qt>";
}

QString TitleText(std::string_view text) {
  return OneLine(text).replace("[*]", "[*][*]");
}

}  // namespace mardel
