// The one text of a tool's arguments.
#include <algorithm>

#include "fuzz/target.h"
#include "platform/process.h"

namespace mardel {

void TryInput(std::string_view input) {
  const std::vector<std::string> arguments = SplitArguments(input);
  std::string quoted;
  std::ptrdiff_t size = 0;
  for (const std::string& argument : arguments) {
    Require(argument.find('"') == std::string::npos, "no quotes are left");
    size += std::ssize(argument);
    quoted += '"' + argument + "\" ";
  }
  Require(SplitArguments(quoted) == arguments, "quoted arguments are split into the same");
  const auto dropped = std::ranges::count(input, '"') + std::ranges::count(input, ' ');
  Require(size <= std::ssize(input) && size >= std::ssize(input) - dropped,
          "nothing but blanks and quotes is dropped");
}

}  // namespace mardel
