// Text that many records share: copying it copies a pointer.
#pragma once

#include <concepts>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "platform/hash.h"

namespace mardel {

// Never changes. Equal texts need not be shared, but those that are compare at once.
class shared_text {
 public:
  shared_text() = default;
  shared_text(std::string text) {
    if (!text.empty()) text_ = std::make_shared<const std::string>(std::move(text));
  }
  shared_text(const char* text) : shared_text(std::string(text)) {}
  explicit shared_text(std::string_view text) : shared_text(std::string(text)) {}

  const std::string& Text() const;
  operator const std::string&() const { return Text(); }
  operator std::string_view() const {
    return text_ == nullptr ? std::string_view() : std::string_view(*text_);
  }
  bool empty() const { return text_ == nullptr; }

  friend bool operator==(const shared_text& a, const shared_text& b) {
    return a.text_ == b.text_ || a.Text() == b.Text();
  }
  template <std::convertible_to<std::string_view> other>
    requires(!std::same_as<other, shared_text>)
  friend bool operator==(const shared_text& a, const other& b) {
    return std::string_view(a) == std::string_view(b);
  }

 private:
  std::shared_ptr<const std::string> text_;  // null for ""
};

std::string operator+(std::string_view before, const shared_text& text);
std::string operator+(const shared_text& text, std::string_view after);

// Gives equal texts one place in memory.
class text_pool {
 public:
  const shared_text& Share(std::string_view text);

 private:
  std::unordered_map<std::string_view, shared_text, text_hash> texts_;  // by themselves
};

}  // namespace mardel
