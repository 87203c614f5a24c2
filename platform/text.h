// Text is UTF-8.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace mardel {

// Leading blanks and a sign, then leading digits; the rest is ignored. No digits give 0, values out
// of range the nearest one that fits.
std::int64_t ParseInteger(std::string_view text);

// Letter by letter, in all of Unicode: no letter becomes two.
std::string UpperCase(std::string_view text);

// Every "\r\n", "\r" or "\n" becomes `separator`. Text that is not UTF-8 is returned unchanged.
std::string ReplaceLineBreaks(std::string_view text, std::string_view separator);

// Drops what an XML file can't hold: control characters other than tab and line breaks, U+FFFE,
// U+FFFF, and bytes that are not UTF-8.
std::string DropUnstorable(std::string_view text);

// Number of characters, not bytes.
std::size_t CountCharacters(std::string_view text);

// Text that may grow without end, of which the beginning and the end are kept: `most` bytes in all,
// and between them a note of how many bytes were left out. Never cuts inside a character.
class cut_text {
 public:
  explicit cut_text(std::size_t most) : most_head_(most / 2), most_tail_(most - most / 2) {}
  void Append(std::string_view text);
  std::string Text() const;

 private:
  std::size_t most_head_, most_tail_;
  std::size_t size_ = 0;  // of all that was appended
  std::string head_, tail_;
};

// `long_text` as cut_text keeps it.
std::string CutMiddle(std::string_view long_text, std::size_t most);

}  // namespace mardel
