// What the user typed after the program's name.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "editor/rendering.h"

namespace mardel {

enum class verb { kWindow, kGenerate, kCheck, kRender, kList, kHelp, kVersion };

enum class tool_steps { kNone, kPreprocess, kProgram };

enum class picture_area { kCanvas, kDrawn };

struct command_line {
  verb action = verb::kWindow;
  std::string output;  // of kGenerate and kRender
  tool_steps tools = tool_steps::kNone;
  int location = 0;    // of tool_steps::kProgram
  double scale = 1.0;  // of kRender, and so the next two
  grid lines = grid::kHidden;
  picture_area area = picture_area::kCanvas;
  std::vector<std::string> names;  // design files, or the library of kList
  bool operator==(const command_line&) const = default;
};

struct usage_error {
  std::string text;  // one line
  bool operator==(const usage_error&) const = default;
};

// `arguments` is without the program's name. After "--" everything is a name.
std::variant<command_line, usage_error> ParseCommandLine(std::span<const std::string> arguments);

std::string_view UsageText();

}  // namespace mardel
