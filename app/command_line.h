// What the user typed after the program's name.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "codegen/settings.h"
#include "editor/rendering.h"

namespace mardel {

enum class samples { kLeftOut, kMadeOnce };

struct window_request {
  std::string design;                    // "" opens none
  samples at_start = samples::kLeftOut;  // in a programs folder where there is none
};

struct generate_request {
  std::string design, output;
  run_option steps = run_option::kSourceOnly;
  int location = 0;  // of run_option::kRun, which stores the program there
};

struct check_request {
  std::vector<std::string> designs;
};

enum class picture_area { kCanvas, kDrawn };

struct render_request {
  std::string design, output;
  double scale = 1.0;
  grid lines = grid::kHidden;
  picture_area area = picture_area::kCanvas;
};

struct list_request {
  std::string library;  // "" names them all
};

struct init_request {
  std::string folder;  // "" is the programs folder
};

struct help_request {};
struct version_request {};

struct usage_error {
  std::string text;  // one line
};

// An alternative each for the window, for every verb, and for what makes no sense.
using command_line =
    std::variant<window_request, generate_request, check_request, render_request, list_request,
                 init_request, help_request, version_request, usage_error>;

// `arguments` is without the program's name. After "--" everything is a name.
command_line ParseCommandLine(std::span<const std::string> arguments);

std::string_view UsageText();

}  // namespace mardel
