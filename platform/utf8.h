// UTF-8, character by character. Strict: no overlong forms, no surrogates, nothing above U+10FFFF.
#pragma once

#include <cstddef>
#include <string_view>

namespace mardel {

struct utf8_character {
  char32_t code = 0;
  std::size_t size = 0;  // bytes; 0 when the text is empty or starts with bytes that are not UTF-8
};

utf8_character FirstCharacter(std::string_view text);

// True for the second and later bytes of a character.
constexpr bool IsContinuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

// The longest beginning of at most `most` bytes that cuts no character.
std::string_view Beginning(std::string_view text, std::size_t most);

}  // namespace mardel
