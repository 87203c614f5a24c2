// What the user typed after the program's name.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "app/report_formats.h"
#include "codegen/settings.h"
#include "editor/rendering.h"
#include "platform/picture_file.h"

namespace mardel {

enum class samples { kLeftOut, kMadeOnce };

struct window_request {
  std::string design;                    // "" opens none
  samples at_start = samples::kLeftOut;  // in a programs folder where there is none
};

// "-" as a design is standard input, as an output standard output.
constexpr std::string_view kStream = "-";

// Where settings and libraries come from instead of their usual places; "" is the usual one.
struct setting_paths {
  std::string configuration, libraries;
};

enum class warning_effect { kTold, kRefuse };

struct generate_request {
  setting_paths from = {};
  std::string design, output;
  warning_effect warnings = warning_effect::kTold;
  run_option steps = run_option::kSourceOnly;
  int location = 0;  // of run_option::kRun, which stores the program there
};

struct check_request {
  setting_paths from = {};
  std::vector<std::string> designs;
  warning_effect warnings = warning_effect::kTold;
  report_format format = report_format::kText;
};

enum class text_format { kText, kJson };

struct explain_request {
  setting_paths from = {};
  std::string design;
  text_format format = text_format::kText;
};

struct diff_request {
  std::string old_design;  // "" lists all of the new one
  std::string new_design;
  text_format format = text_format::kText;
};

// The merged design takes the place of ours.
struct merge_request {
  std::string base, ours, theirs;
};

enum class picture_area { kCanvas, kDrawn };

struct render_request {
  setting_paths from = {};
  std::string design, output;
  std::string old_design = {};  // what changed since is marked; "" marks nothing
  picture_format format = picture_format::kPng;
  double scale = 1.0;
  grid lines = grid::kHidden;
  picture_area area = picture_area::kCanvas;
};

struct list_request {
  setting_paths from = {};
  std::string library;  // "" names them all
};

struct init_request {
  std::string folder;  // "" is the programs folder
};

struct recover_request {};

struct history_request {
  std::string design;
  std::optional<int> number;  // of the version to print; none lists them
};

struct help_request {};
struct version_request {};

struct usage_error {
  std::string text;  // one line
};

// An alternative each for the window, for every verb, and for what makes no sense.
using command_line =
    std::variant<window_request, generate_request, check_request, explain_request, diff_request,
                 merge_request, render_request, list_request, init_request, recover_request,
                 history_request, help_request, version_request, usage_error>;

// `arguments` is without the program's name. "--option=value" is "--option value"; after "--"
// everything is a name.
command_line ParseCommandLine(std::span<const std::string> arguments);

std::string_view UsageText();

}  // namespace mardel
