#include "app/command_line.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <set>

#include "app/main_menu.h"
#include "platform/picture_file.h"

namespace mardel {
namespace {

constexpr double kLeastScale = 0.25;
constexpr double kMostScale = 8;
constexpr std::size_t kAnyNumber = std::numeric_limits<std::size_t>::max();

struct verb_rule {
  std::string_view option;
  verb action;
  std::size_t least_names, most_names;
  std::string_view name;  // what a name stands for
};

constexpr verb_rule kVerbs[] = {
    {"", verb::kWindow, 0, 1, "design"},
    {"--generate", verb::kGenerate, 1, 1, "design"},
    {"--check", verb::kCheck, 1, kAnyNumber, "design"},
    {"--render", verb::kRender, 1, 1, "design"},
    {"--list", verb::kList, 0, 1, "library"},
    {"--help", verb::kHelp, 0, 0, ""},
    {"--version", verb::kVersion, 0, 0, ""},
};

std::string Quoted(std::string_view text) {
  return '"' + std::string(text) + '"';
}

// Nothing when the text is not just a number; "nan" is one.
template <class number>
std::optional<number> ParseNumber(const std::string& text) {
  number value{};
  const char* const end = text.data() + text.size();
  const auto [stop, status] = std::from_chars(text.data(), end, value);
  return status == std::errc() && stop == end ? std::optional(value) : std::nullopt;
}

class parser {
 public:
  explicit parser(std::span<const std::string> arguments) : rest_(arguments) {}

  std::variant<command_line, usage_error> Parse() {
    while (error_.empty() && !rest_.empty()) ParseNext();
    if (error_.empty()) CheckWhole();
    if (!error_.empty()) return usage_error{error_};
    return parsed_;
  }

 private:
  std::string Take() {
    const std::string& first = rest_.front();
    rest_ = rest_.subspan(1);
    return first;
  }

  void ParseNext() {
    const std::string argument = Take();
    if (only_names_ || !argument.starts_with('-') || argument == "-") {
      parsed_.names.push_back(argument);
    } else if (argument == "--") {
      only_names_ = true;
    } else if (argument == "--preprocess" || argument == "--program") {
      ParseTools(argument);
    } else if (argument == "--scale" || argument == "--grid" || argument == "--crop") {
      ParsePicture(argument);
    } else {
      ParseVerb(argument);
    }
  }

  void ParseVerb(const std::string& option) {
    const auto* const found = std::ranges::find(kVerbs, option, &verb_rule::option);
    if (found == std::end(kVerbs)) {
      error_ = "unknown option " + Quoted(option);
    } else if (rule_ != kVerbs) {
      error_ = option + " can't follow " + std::string(rule_->option);
    } else {
      rule_ = found;
      if (found->action == verb::kGenerate) parsed_.output = TakeValue(option, "an output file");
      if (found->action == verb::kRender) ParseOutput(TakeValue(option, "a picture file"));
    }
  }

  void ParseOutput(const std::string& path) {
    parsed_.output = path;
    if (!error_.empty() || FormatOfPicture(path)) return;
    error_ = "picture " + Quoted(path) + " ends in none of .png, .svg and .pdf";
  }

  void ParseTools(const std::string& option) {
    if (parsed_.tools != tool_steps::kNone) {
      error_ = "only one of --preprocess and --program can be given, and once";
    } else if (option == "--preprocess") {
      parsed_.tools = tool_steps::kPreprocess;
    } else {
      parsed_.tools = tool_steps::kProgram;
      ParseLocation(TakeValue(option, "a program location"));
    }
  }

  void ParseLocation(const std::string& text) {
    parsed_.location = ParseNumber<int>(text).value_or(-1);
    const bool is_one = parsed_.location >= 0 && parsed_.location < kProgramLocations;
    if (!error_.empty() || is_one) return;
    error_ = "program location " + Quoted(text) + " is not one of 0 to " +
             std::to_string(kProgramLocations - 1);
  }

  void ParsePicture(const std::string& option) {
    if (!picture_options_.insert(option).second) {
      error_ = option + " can be given once";
    } else if (option == "--scale") {
      ParseScale(TakeValue(option, "a number"));
    } else if (option == "--grid") {
      parsed_.lines = grid::kShown;
    } else {
      parsed_.area = picture_area::kDrawn;
    }
  }

  void ParseScale(const std::string& text) {
    parsed_.scale = ParseNumber<double>(text).value_or(0);
    const bool is_one = parsed_.scale >= kLeastScale && parsed_.scale <= kMostScale;
    if (error_.empty() && !is_one) error_ = "scale " + Quoted(text) + " is not one of 0.25 to 8";
  }

  std::string TakeValue(const std::string& option, const std::string& meaning) {
    if (!rest_.empty() && !rest_.front().empty() && !rest_.front().starts_with('-')) return Take();
    error_ = option + " needs " + meaning;
    return {};
  }

  void CheckWhole() {
    parsed_.action = rule_->action;
    const std::size_t names = parsed_.names.size();
    if (parsed_.tools != tool_steps::kNone && parsed_.action != verb::kGenerate) {
      error_ = "--preprocess and --program go with --generate only";
    } else if (!picture_options_.empty() && parsed_.action != verb::kRender) {
      error_ = "--scale, --grid and --crop go with --render only";
    } else if (names < rule_->least_names) {
      error_ = std::string(rule_->option) + " needs a " + std::string(rule_->name);
    } else if (names > rule_->most_names) {
      error_ = "extra argument " + Quoted(parsed_.names[rule_->most_names]);
    } else if (std::ranges::count(parsed_.names, "") > 0) {
      error_ = "a " + std::string(rule_->name) + " has no name";
    }
  }

  std::span<const std::string> rest_;
  const verb_rule* rule_ = kVerbs;
  bool only_names_ = false;
  std::set<std::string> picture_options_;
  command_line parsed_;
  std::string error_;
};

}  // namespace

std::variant<command_line, usage_error> ParseCommandLine(std::span<const std::string> arguments) {
  return parser(arguments).Parse();
}

std::string_view UsageText() {
  return R"(usage: mardel [DESIGN.mrd]
       mardel --generate OUT.dvc [--preprocess | --program N] DESIGN.mrd
       mardel --check DESIGN.mrd...
       mardel --render OUT.{png,svg,pdf} [--scale S] [--grid] [--crop] DESIGN.mrd
       mardel --list [LIBRARY]
       mardel --help
       mardel --version

Without an option the window opens, with the design if one is given.

  --generate OUT.dvc  write the design's source file
  --preprocess        then run the preprocessor on it
  --program N         then run the preprocessor, and the assembler to store the
                      program in location N (0 to 15)
  --check             name every problem of the designs
  --render OUT        draw the design into a PNG, SVG or PDF file
  --scale S           enlarge the picture (0.25 to 8)
  --grid              draw the grid too
  --crop              cut the picture to what is drawn and 20 pixels around it
  --list              name the libraries, or describe the blocks of one
  --help              show how mardel is called
  --version           show the version

Exit status: 0 done; 1 a design or a tool refused; 2 wrong usage; 3 a file
could not be read or written, or a tool could not be started.
)";
}

}  // namespace mardel
