// Writes JSON, indented by two blanks a level.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace mardel {

class json_text {
 public:
  // Objects and arrays are opened and closed in turn; a name comes before each value of an object.
  json_text& OpenObject() { return Open('{'); }
  json_text& CloseObject() { return Close('}'); }
  json_text& OpenArray() { return Open('['); }
  json_text& CloseArray() { return Close(']'); }
  json_text& Name(std::string_view name);
  json_text& Value(std::string_view value);  // bytes that are not UTF-8 become U+FFFD
  json_text& Value(std::int64_t value);
  json_text& Null();

  // The document, ended by a line feed.
  std::string Take();

 private:
  json_text& Open(char bracket);
  json_text& Close(char bracket);
  json_text& Raw(std::string_view value);
  void BreakLine();

  std::string text_;
  std::size_t level_ = 0;
  bool is_first_ = true;  // of its level
  bool is_named_ = false;
};

}  // namespace mardel
