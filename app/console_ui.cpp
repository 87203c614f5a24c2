#include "app/console_ui.h"

#include <algorithm>
#include <utility>

namespace mardel {

console_ui::console_ui(std::ostream& messages, std::string chosen_path)
    : messages_(messages), chosen_path_(std::move(chosen_path)) {}

answer console_ui::ShowMessage(const message& shown) {
  std::string line = prefix + shown.title + ": " + shown.text;
  std::ranges::replace(line, '\r', '\n');
  messages_ << line << std::endl;
  return shown.buttons == message_buttons::kOk ? answer::kOk : answer::kNo;
}

std::string console_ui::AskOpenFile(const file_request& /*request*/) {
  return {};
}

std::string console_ui::AskSaveFile(const file_request& /*request*/) {
  return chosen_path_;
}

}  // namespace mardel
