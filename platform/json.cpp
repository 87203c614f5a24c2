#include "platform/json.h"

#include "platform/escaping.h"

namespace mardel {

json_text& json_text::Name(std::string_view name) {
  Value(name);
  text_ += ": ";
  is_named_ = true;
  return *this;
}

json_text& json_text::Value(std::string_view value) {
  return Raw('"' + EscapeJson(value) + '"');
}

json_text& json_text::Value(std::int64_t value) {
  return Raw(std::to_string(value));
}

json_text& json_text::Null() {
  return Raw("null");
}

std::string json_text::Take() {
  return std::move(text_) + '\n';
}

json_text& json_text::Open(char bracket) {
  Raw({&bracket, 1});
  ++level_;
  is_first_ = true;
  return *this;
}

json_text& json_text::Close(char bracket) {
  --level_;
  if (!is_first_) BreakLine();
  text_ += bracket;
  is_first_ = false;
  return *this;
}

json_text& json_text::Raw(std::string_view value) {
  if (!is_named_) {
    if (!is_first_) text_ += ',';
    if (level_ > 0) BreakLine();
  }
  text_ += value;
  is_first_ = is_named_ = false;
  return *this;
}

void json_text::BreakLine() {
  text_ += '\n';
  text_.append(2 * level_, ' ');
}

}  // namespace mardel
