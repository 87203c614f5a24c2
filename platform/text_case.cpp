#include <clocale>
#include <cwctype>

#ifdef __APPLE__
#include <xlocale.h>
#endif

#include "platform/text.h"
#include "platform/utf8.h"

namespace mardel {
namespace {

// Whatever the user's locale: the one that knows the letters of all languages, and is always there.
char32_t UpperLetter(char32_t letter) {
  if (letter < 0x80) return letter >= 'a' && letter <= 'z' ? letter - 'a' + 'A' : letter;
  static const locale_t letters = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
  if (letters == nullptr) return letter;
  return static_cast<char32_t>(towupper_l(static_cast<wint_t>(letter), letters));
}

void AppendCharacter(std::string& text, char32_t code) {
  if (code < 0x80) {
    text += static_cast<char>(code);
    return;
  }
  constexpr char32_t kLead[] = {0xC0, 0xE0, 0xF0};
  const std::size_t followers = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
  text += static_cast<char>(kLead[followers - 1] | code >> (6 * followers));
  for (std::size_t left = followers; left-- > 0;) {
    text += static_cast<char>(0x80U | (code >> (6 * left) & 0x3FU));
  }
}

}  // namespace

std::string UpperCase(std::string_view text) {
  std::string upper;
  upper.reserve(text.size());
  while (!text.empty()) {
    const utf8_character first = FirstCharacter(text);
    if (first.size == 0) {
      upper += text.front();
    } else {
      AppendCharacter(upper, UpperLetter(first.code));
    }
    text.remove_prefix(first.size == 0 ? 1 : first.size);
  }
  return upper;
}

}  // namespace mardel
