#include "platform/utf8.h"

namespace mardel {
namespace {

// What the first byte of a character tells. `least` is the smallest code that needs this size.
struct lead {
  unsigned mask, bits;
  std::size_t size;
  char32_t least;
};
constexpr lead kLeads[] = {
    {0x80U, 0x00U, 1, 0},
    {0xE0U, 0xC0U, 2, 0x80},
    {0xF0U, 0xE0U, 3, 0x800},
    {0xF8U, 0xF0U, 4, 0x10000},
};

bool IsScalar(char32_t code) {
  return code < 0xD800 || (code > 0xDFFF && code <= 0x10FFFF);
}

}  // namespace

utf8_character FirstCharacter(std::string_view text) {
  if (text.empty()) return {};
  const unsigned first = static_cast<unsigned char>(text[0]);
  for (const lead& l : kLeads) {
    if ((first & l.mask) != l.bits) continue;
    if (text.size() < l.size) return {};
    char32_t code = first & ~l.mask;
    for (std::size_t i = 1; i < l.size; ++i) {
      if (!IsContinuation(text[i])) return {};
      code = code << 6U | (static_cast<unsigned char>(text[i]) & 0x3FU);
    }
    if (code < l.least || !IsScalar(code)) return {};
    return {code, l.size};
  }
  return {};
}

std::string_view Beginning(std::string_view text, std::size_t most) {
  if (text.size() <= most) return text;
  while (most > 0 && IsContinuation(text[most])) --most;
  return text.substr(0, most);
}

}  // namespace mardel
