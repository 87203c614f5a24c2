#include "platform/text.h"

#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>

#include <algorithm>
#include <charconv>
#include <limits>
#include <memory>

#include "platform/utf8.h"

namespace mardel {
namespace {

using pattern = std::unique_ptr<pcre2_code, decltype(&pcre2_code_free)>;

pattern LineBreakPattern() {
  static constexpr std::string_view kLineBreak = "(\r\n|\r|\n)";
  int error = 0;
  std::size_t error_place = 0;
  pcre2_code* compiled = pcre2_compile(reinterpret_cast<PCRE2_SPTR>(kLineBreak.data()),
                                       kLineBreak.size(), PCRE2_UTF, &error, &error_place, nullptr);
  return {compiled, &pcre2_code_free};
}

bool IsStorable(char32_t code) {
  if (code < 0x20) return code == '\t' || code == '\n' || code == '\r';
  return code != 0xFFFE && code != 0xFFFF;
}

// The size of `text` without a character at its end of which bytes are missing.
std::size_t CompleteSize(std::string_view text) {
  for (std::size_t back = 1; back <= std::min<std::size_t>(3, text.size()); ++back) {
    const unsigned byte = static_cast<unsigned char>(text[text.size() - back]);
    if (byte < 0x80U) break;
    if (byte < 0xC0U) continue;
    const std::size_t needed = byte >= 0xF0U ? 4 : byte >= 0xE0U ? 3 : 2;
    return needed > back ? text.size() - back : text.size();
  }
  return text.size();
}

// The number of bytes at the start that belong to a character begun before it.
std::size_t StartedBefore(std::string_view text) {
  std::size_t size = 0;
  while (size < std::min<std::size_t>(3, text.size()) && IsContinuation(text[size])) ++size;
  return size;
}

}  // namespace

std::int64_t ParseInteger(std::string_view text) {
  const std::size_t start = text.find_first_not_of(" \t\n\v\f\r");
  if (start == std::string_view::npos) return 0;
  text.remove_prefix(start);
  const bool negative = text[0] == '-';
  if (text[0] == '+') text.remove_prefix(1);
  if (text.starts_with('-') && !negative) return 0;  // "+-5", which from_chars would take

  std::int64_t value = 0;
  const std::errc problem = std::from_chars(text.data(), text.data() + text.size(), value).ec;
  if (problem != std::errc::result_out_of_range) return value;
  using limits = std::numeric_limits<std::int64_t>;
  return negative ? limits::min() : limits::max();
}

std::string ReplaceLineBreaks(std::string_view text, std::string_view separator) {
  // Nothing changes, which to find out takes seconds for millions of lines.
  if (separator == "\n" && text.find('\r') == std::string_view::npos) return std::string(text);
  const auto breaks = static_cast<std::size_t>(std::count_if(
      text.begin(), text.end(), [](char byte) { return byte == '\r' || byte == '\n'; }));
  const pattern line_break = LineBreakPattern();
  if (breaks == 0 || line_break == nullptr) return std::string(text);

  std::string replaced(text.size() + breaks * separator.size() + 1, '\0');
  std::size_t size = replaced.size();
  const int count =
      pcre2_substitute(line_break.get(), reinterpret_cast<PCRE2_SPTR>(text.data()), text.size(), 0,
                       PCRE2_SUBSTITUTE_GLOBAL | PCRE2_SUBSTITUTE_LITERAL, nullptr, nullptr,
                       reinterpret_cast<PCRE2_SPTR>(separator.data()), separator.size(),
                       reinterpret_cast<PCRE2_UCHAR*>(replaced.data()), &size);
  if (count < 0) return std::string(text);
  replaced.resize(size);
  return replaced;
}

std::string DropUnstorable(std::string_view text) {
  std::string kept;
  kept.reserve(text.size());
  while (!text.empty()) {
    const utf8_character first = FirstCharacter(text);
    if (first.size != 0 && IsStorable(first.code)) kept.append(text.substr(0, first.size));
    text.remove_prefix(std::max<std::size_t>(first.size, 1));
  }
  return kept;
}

std::size_t CountCharacters(std::string_view text) {
  return static_cast<std::size_t>(
      std::ranges::count_if(text, [](char byte) { return !IsContinuation(byte); }));
}

void cut_text::Append(std::string_view text) {
  size_ += text.size();
  const std::size_t to_head = std::min(text.size(), most_head_ - head_.size());
  head_.append(text.substr(0, to_head));
  tail_.append(text.substr(to_head));
  if (tail_.size() > 2 * most_tail_) tail_.erase(0, tail_.size() - most_tail_);
}

std::string cut_text::Text() const {
  if (size_ <= most_head_ + most_tail_) return head_ + tail_;
  const std::string_view head = std::string_view(head_).substr(0, CompleteSize(head_));
  std::string_view tail = std::string_view(tail_).substr(tail_.size() - most_tail_);
  tail.remove_prefix(StartedBefore(tail));
  const std::size_t left_out = size_ - head.size() - tail.size();
  return std::string(head) + "[... " + std::to_string(left_out) + " bytes left out ...]" +
         std::string(tail);
}

std::string CutMiddle(std::string_view long_text, std::size_t most) {
  cut_text kept(most);
  kept.Append(long_text);
  return kept.Text();
}

}  // namespace mardel
