#include "platform/shared_text.h"

namespace mardel {

const std::string& shared_text::Text() const {
  static const std::string none;
  return text_ == nullptr ? none : *text_;
}

std::string operator+(std::string_view before, const shared_text& text) {
  return std::string(before) += text.Text();
}

std::string operator+(const shared_text& text, std::string_view after) {
  return std::string(text.Text()) += after;
}

const shared_text& text_pool::Share(std::string_view text) {
  const auto found = texts_.find(text);
  if (found != texts_.end()) return found->second;
  const shared_text made(text);
  return texts_.emplace(made, made).first->second;
}

}  // namespace mardel
