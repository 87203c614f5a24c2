#include "platform/escaping.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "platform/utf8.h"

namespace mardel {
namespace {

std::string Hexadecimal(const char* format, unsigned value) {
  std::array<char, 16> digits{};
  std::snprintf(digits.data(), digits.size(), format, value);
  return digits.data();
}

bool IsControl(char32_t code) {
  const bool breaks_lines = code == 0x2028 || code == 0x2029;
  return code < 0x20 || (code >= 0x7F && code < 0xA0) || breaks_lines;
}

std::string Escaped(char byte) {
  switch (byte) {
    case '\n':
      return "\\n";
    case '\r':
      return "\\r";
    case '\t':
      return "\\t";
    default:
      return Hexadecimal("\\x%02X", static_cast<unsigned char>(byte));
  }
}

// Calls for each character, with size 0 in place of a byte that is not UTF-8.
template <class function>
void ForEachCharacter(std::string_view text, function call) {
  while (!text.empty()) {
    const utf8_character next = FirstCharacter(text);
    const std::size_t size = next.size == 0 ? 1 : next.size;
    call(next, text.substr(0, size));
    text.remove_prefix(size);
  }
}

}  // namespace

std::string EscapeControls(std::string_view text) {
  const auto is_plain = [](char byte) { return byte >= ' ' && byte <= '~'; };
  if (std::ranges::all_of(text, is_plain)) return std::string(text);
  std::string escaped;
  ForEachCharacter(text, [&](utf8_character next, std::string_view bytes) {
    if (next.size != 0 && !IsControl(next.code)) {
      escaped += bytes;
    } else {
      for (const char byte : bytes) escaped += Escaped(byte);
    }
  });
  return escaped;
}

std::string EscapeJson(std::string_view text) {
  std::string escaped;
  ForEachCharacter(text, [&](utf8_character next, std::string_view bytes) {
    if (next.size == 0) {
      escaped += "\xEF\xBF\xBD";
    } else if (next.code == '"' || next.code == '\\') {
      (escaped += '\\') += bytes;
    } else if (IsControl(next.code)) {
      escaped += Hexadecimal("\\u%04X", next.code);
    } else {
      escaped += bytes;
    }
  });
  return escaped;
}

std::string EscapePath(std::string_view path) {
  constexpr std::string_view kPlain =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
  std::string escaped;
  for (const char byte : path) {
    if (kPlain.find(byte) != std::string_view::npos) {
      escaped += byte;
    } else {
      escaped += Hexadecimal("%%%02X", static_cast<unsigned char>(byte));
    }
  }
  return escaped;
}

}  // namespace mardel
