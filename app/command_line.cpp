#include "app/command_line.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <map>
#include <optional>

#include "app/main_menu.h"
#include "platform/picture_file.h"

namespace mardel {
namespace {

constexpr double kLeastScale = 0.25;
constexpr double kMostScale = 8;
constexpr std::size_t kAnyNumber = std::numeric_limits<std::size_t>::max();

// The arguments in their groups, when their numbers are right.
struct typed_words {
  std::string verb_value;
  std::map<std::string_view, std::string> options;  // to their values
  std::vector<std::string> names;

  // Null when it was not given.
  const std::string* Option(std::string_view name) const {
    const auto found = options.find(name);
    return found == options.end() ? nullptr : &found->second;
  }
  std::string FirstName() const { return names.empty() ? std::string() : names.front(); }
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

command_line Window(const typed_words& typed) {
  return window_request{typed.FirstName()};
}

command_line Welcome(const typed_words& typed) {
  return window_request{typed.FirstName(), samples::kMadeOnce};
}

command_line Generate(const typed_words& typed) {
  generate_request asked{.design = typed.FirstName(), .output = typed.verb_value};
  if (typed.Option("--preprocess") != nullptr) asked.steps = run_option::kPreprocess;
  const std::string* const location = typed.Option("--program");
  if (location == nullptr) return asked;
  if (asked.steps == run_option::kPreprocess) {
    return usage_error{"only one of --preprocess and --program can be given"};
  }
  asked.steps = run_option::kRun;
  asked.location = ParseNumber<int>(*location).value_or(-1);
  if (asked.location >= 0 && asked.location < kProgramLocations) return asked;
  return usage_error{"program location " + Quoted(*location) + " is not one of 0 to " +
                     std::to_string(kProgramLocations - 1)};
}

command_line Check(const typed_words& typed) {
  return check_request{typed.names};
}

command_line Render(const typed_words& typed) {
  render_request asked{.design = typed.FirstName(), .output = typed.verb_value};
  if (!FormatOfPicture(asked.output)) {
    return usage_error{"picture " + Quoted(asked.output) + " ends in none of .png, .svg and .pdf"};
  }
  if (typed.Option("--grid") != nullptr) asked.lines = grid::kShown;
  if (typed.Option("--crop") != nullptr) asked.area = picture_area::kDrawn;
  const std::string* const scale = typed.Option("--scale");
  if (scale == nullptr) return asked;
  asked.scale = ParseNumber<double>(*scale).value_or(0);
  if (asked.scale >= kLeastScale && asked.scale <= kMostScale) return asked;
  return usage_error{"scale " + Quoted(*scale) + " is not one of 0.25 to 8"};
}

command_line List(const typed_words& typed) {
  return list_request{typed.FirstName()};
}

command_line Init(const typed_words& typed) {
  return init_request{typed.FirstName()};
}

template <class request>
command_line Plain(const typed_words& /*typed*/) {
  return request{};
}

struct verb_rule {
  std::string_view name;   // "" for the window
  std::string_view value;  // what follows it; "" when nothing does
  std::size_t least_names, most_names;
  std::string_view named;  // what a name stands for
  command_line (*make)(const typed_words& typed);
};

constexpr verb_rule kVerbs[] = {
    {"", "", 0, 1, "design", Window},
    {"--welcome", "", 0, 1, "design", Welcome},
    {"--generate", "an output file", 1, 1, "design", Generate},
    {"--check", "", 1, kAnyNumber, "design", Check},
    {"--render", "a picture file", 1, 1, "design", Render},
    {"--list", "", 0, 1, "library", List},
    {"--init", "", 0, 1, "folder", Init},
    {"--help", "", 0, 0, "", Plain<help_request>},
    {"--version", "", 0, 0, "", Plain<version_request>},
};

struct option_rule {
  std::string_view name;
  std::string_view value;  // as verb_rule has it
  std::string_view verb;   // that it goes with
};

constexpr option_rule kOptions[] = {
    {"--preprocess", "", "--generate"},  {"--program", "a program location", "--generate"},
    {"--scale", "a number", "--render"}, {"--grid", "", "--render"},
    {"--crop", "", "--render"},
};

// Puts the arguments into their groups; the first that makes no sense ends it.
class parser {
 public:
  explicit parser(std::span<const std::string> arguments) : rest_(arguments) {}

  command_line Parse() {
    while (error_.empty() && !rest_.empty()) SortNext();
    if (error_.empty()) CheckWhole();
    if (!error_.empty()) return usage_error{error_};
    return verb_->make(typed_);
  }

 private:
  std::string Take() {
    const std::string& first = rest_.front();
    rest_ = rest_.subspan(1);
    return first;
  }

  void SortNext() {
    const std::string argument = Take();
    if (only_names_ || !argument.starts_with('-') || argument == "-") {
      typed_.names.push_back(argument);
    } else if (argument == "--") {
      only_names_ = true;
    } else if (const auto* option = std::ranges::find(kOptions, argument, &option_rule::name);
               option != std::end(kOptions)) {
      SortOption(*option);
    } else {
      SortVerb(argument);
    }
  }

  void SortOption(const option_rule& option) {
    const auto [place, is_first] = typed_.options.try_emplace(option.name);
    if (!is_first) error_ = std::string(option.name) + " can be given once";
    if (is_first && !option.value.empty()) place->second = TakeValue(option.name, option.value);
  }

  void SortVerb(const std::string& name) {
    const auto* const found = std::ranges::find(kVerbs, name, &verb_rule::name);
    if (found == std::end(kVerbs)) {
      error_ = "unknown option " + Quoted(name);
    } else if (verb_ != kVerbs) {
      error_ = name + " can't follow " + std::string(verb_->name);
    } else {
      verb_ = found;
      if (!found->value.empty()) typed_.verb_value = TakeValue(name, found->value);
    }
  }

  std::string TakeValue(std::string_view name, std::string_view meaning) {
    if (!rest_.empty() && !rest_.front().empty() && !rest_.front().starts_with('-')) return Take();
    error_ = std::string(name) + " needs " + std::string(meaning);
    return {};
  }

  void CheckWhole() {
    const std::size_t names = typed_.names.size();
    for (const option_rule& option : kOptions) {
      if (typed_.Option(option.name) == nullptr || option.verb == verb_->name) continue;
      error_ = std::string(option.name) + " goes with " + std::string(option.verb) + " only";
      return;
    }
    if (names < verb_->least_names) {
      error_ = std::string(verb_->name) + " needs a " + std::string(verb_->named);
    } else if (names > verb_->most_names) {
      error_ = "extra argument " + Quoted(typed_.names[verb_->most_names]);
    } else if (std::ranges::count(typed_.names, "") > 0) {
      error_ = "a " + std::string(verb_->named) + " has no name";
    }
  }

  std::span<const std::string> rest_;
  const verb_rule* verb_ = kVerbs;
  bool only_names_ = false;
  typed_words typed_;
  std::string error_;
};

}  // namespace

command_line ParseCommandLine(std::span<const std::string> arguments) {
  return parser(arguments).Parse();
}

std::string_view UsageText() {
  return R"(usage: mardel [--welcome] [DESIGN.mrd]
       mardel --generate OUT.dvc [--preprocess | --program N] DESIGN.mrd
       mardel --check DESIGN.mrd...
       mardel --render OUT.{png,svg,pdf} [--scale S] [--grid] [--crop] DESIGN.mrd
       mardel --list [LIBRARY]
       mardel --init [FOLDER]
       mardel --help
       mardel --version

Without an option the window opens, with the design if one is given.

  --welcome           first do as --init, unless the folder is there
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
  --init              make a folder with sample designs, their libraries and a
                      configuration; without a name it is "Dravik programs"
                      in the Documents folder
  --help              show how mardel is called
  --version           show the version

Exit status: 0 done; 1 a design or a tool refused; 2 wrong usage; 3 a file
could not be read or written, or a tool could not be started.
)";
}

}  // namespace mardel
