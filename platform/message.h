// A message box as data.
#pragma once

#include <string>

namespace mardel {

enum class message_buttons { kOk, kYesNo, kYesNoCancel };
enum class message_icon { kCaution, kNote, kStop };
enum class answer { kOk, kYes, kNo, kCancel };

struct message {
  std::string title;
  std::string text;  // plain text, never markup; "\r", "\n" and "\r\n" break lines
  message_buttons buttons = message_buttons::kOk;
  message_icon icon = message_icon::kStop;
  bool operator==(const message&) const = default;
};

}  // namespace mardel
