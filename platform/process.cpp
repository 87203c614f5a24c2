#include "platform/process.h"

namespace mardel {

std::vector<std::string> SplitArguments(std::string_view text) {
  std::vector<std::string> arguments;
  bool quoted = false;
  bool started = false;
  for (const char byte : text) {
    if (byte == ' ' && !quoted) {
      started = false;
      continue;
    }
    if (!started) arguments.emplace_back();
    started = true;
    if (byte == '"') {
      quoted = !quoted;
    } else {
      arguments.back().push_back(byte);
    }
  }
  return arguments;
}

}  // namespace mardel
