#include <QChar>
#include <QString>

#include "platform/text.h"
#include "platform/utf8.h"

namespace mardel {

std::string UpperCase(std::string_view text) {
  std::string upper;
  upper.reserve(text.size());
  while (!text.empty()) {
    const utf8_character first = FirstCharacter(text);
    const std::size_t size = first.size == 0 ? 1 : first.size;
    const char32_t code = QChar::toUpper(first.code);
    if (first.size == 0 || code == first.code) {
      upper.append(text.substr(0, size));
    } else if (code < 0x80) {
      upper.push_back(static_cast<char>(code));
    } else {
      upper += QString::fromUcs4(&code, 1).toStdString();
    }
    text.remove_prefix(size);
  }
  return upper;
}

}  // namespace mardel
