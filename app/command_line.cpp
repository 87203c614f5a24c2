#include "app/command_line.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <map>
#include <optional>
#include <utility>

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

setting_paths Paths(const typed_words& typed) {
  const std::string* const configuration = typed.Option("--config");
  const std::string* const libraries = typed.Option("--libraries");
  return {configuration == nullptr ? "" : *configuration, libraries == nullptr ? "" : *libraries};
}

warning_effect Warnings(const typed_words& typed) {
  return typed.Option("--werror") == nullptr ? warning_effect::kTold : warning_effect::kRefuse;
}

command_line Window(const typed_words& typed) {
  return window_request{typed.FirstName()};
}

command_line Welcome(const typed_words& typed) {
  return window_request{typed.FirstName(), samples::kMadeOnce};
}

command_line Generate(const typed_words& typed) {
  generate_request asked{.from = Paths(typed),
                         .design = typed.FirstName(),
                         .output = typed.verb_value,
                         .warnings = Warnings(typed)};
  if (typed.Option("--preprocess") != nullptr) asked.steps = run_option::kPreprocess;
  const std::string* const location = typed.Option("--program");
  const bool runs_tools = location != nullptr || asked.steps == run_option::kPreprocess;
  if (runs_tools && asked.output == kStream) return usage_error{"tools need an output file"};
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

usage_error WrongFormat(const std::string& name, const std::string& known) {
  return {"format " + Quoted(name) + " is none of " + known};
}

command_line Check(const typed_words& typed) {
  check_request asked{.from = Paths(typed), .designs = typed.names, .warnings = Warnings(typed)};
  const std::string* const name = typed.Option("--format");
  if (name == nullptr) return asked;
  const auto format = FindReportFormat(*name);
  if (!format) return WrongFormat(*name, "text, gcc, json and sarif");
  asked.format = *format;
  return asked;
}

// The request, with its format if that is one.
template <class request>
command_line WithTextFormat(request asked, const typed_words& typed) {
  const std::string* const name = typed.Option("--format");
  if (name == nullptr || *name == "text") return asked;
  if (*name != "json") return WrongFormat(*name, "text and json");
  asked.format = text_format::kJson;
  return asked;
}

command_line Explain(const typed_words& typed) {
  return WithTextFormat(explain_request{.from = Paths(typed), .design = typed.FirstName()}, typed);
}

command_line Diff(const typed_words& typed) {
  diff_request asked{.old_design = {}, .new_design = typed.names.back()};
  if (typed.names.size() == 2) asked.old_design = typed.names.front();
  return WithTextFormat(asked, typed);
}

command_line Merge(const typed_words& typed) {
  if (typed.names[1] == kStream) return usage_error{"--merge needs a file to write to"};
  return merge_request{typed.names[0], typed.names[1], typed.names[2]};
}

command_line Render(const typed_words& typed) {
  render_request asked{
      .from = Paths(typed), .design = typed.FirstName(), .output = typed.verb_value};
  const std::string* const name = typed.Option("--format");
  const auto format = FormatOfPicture(name == nullptr ? asked.output : "." + *name);
  if (!format && name != nullptr) return WrongFormat(*name, "png, svg and pdf");
  if (!format && asked.output == kStream) return usage_error{"a picture to - needs a --format"};
  if (!format) {
    return usage_error{"picture " + Quoted(asked.output) + " ends in none of .png, .svg and .pdf"};
  }
  asked.format = *format;
  if (const std::string* const old = typed.Option("--diff")) asked.old_design = *old;
  if (typed.Option("--grid") != nullptr) asked.lines = grid::kShown;
  if (typed.Option("--crop") != nullptr) asked.area = picture_area::kDrawn;
  const std::string* const scale = typed.Option("--scale");
  if (scale == nullptr) return asked;
  asked.scale = ParseNumber<double>(*scale).value_or(0);
  if (asked.scale >= kLeastScale && asked.scale <= kMostScale) return asked;
  return usage_error{"scale " + Quoted(*scale) + " is not one of 0.25 to 8"};
}

command_line List(const typed_words& typed) {
  return list_request{.from = Paths(typed), .library = typed.FirstName()};
}

command_line Init(const typed_words& typed) {
  return init_request{typed.FirstName()};
}

command_line History(const typed_words& typed) {
  history_request asked{typed.FirstName(), {}};
  if (typed.names.size() < 2) return asked;
  asked.number = ParseNumber<int>(typed.names[1]);
  if (asked.number) return asked;
  return usage_error{"version " + Quoted(typed.names[1]) + " is not a number"};
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
    {"--explain", "", 1, 1, "design", Explain},
    {"--diff", "", 1, 2, "design", Diff},
    {"--merge", "", 3, 3, "base, ours and theirs", Merge},
    {"--render", "a picture file", 1, 1, "design", Render},
    {"--list", "", 0, 1, "library", List},
    {"--init", "", 0, 1, "folder", Init},
    {"--recover", "", 0, 0, "", Plain<recover_request>},
    {"--history", "", 1, 2, "design", History},
    {"--help", "", 0, 0, "", Plain<help_request>},
    {"--version", "", 0, 0, "", Plain<version_request>},
};

struct option_rule {
  std::string_view name;
  std::string_view value;  // as verb_rule has it
  std::string_view verbs;  // that it goes with
};

constexpr std::string_view kLibraryVerbs = "--generate, --check, --explain, --render and --list";
constexpr option_rule kOptions[] = {
    {"--preprocess", "", "--generate"},
    {"--program", "a program location", "--generate"},
    {"--werror", "", "--generate and --check"},
    {"--format", "a format", "--check, --explain, --diff and --render"},
    {"--scale", "a number", "--render"},
    {"--grid", "", "--render"},
    {"--crop", "", "--render"},
    {"--diff", "an older design", "--render"},
    {"--config", "a configuration file", kLibraryVerbs},
    {"--libraries", "a folder", kLibraryVerbs},
};

bool GoesWith(const option_rule& option, std::string_view verb) {
  return !verb.empty() && option.verbs.find(verb) != std::string_view::npos;
}

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
    std::string argument = Take();
    if (only_names_ || !argument.starts_with('-') || argument == kStream) {
      typed_.names.push_back(argument);
    } else if (argument == "--") {
      only_names_ = true;
    } else {
      const std::size_t mark = argument.find('=');
      if (argument.starts_with("--") && mark != std::string::npos) {
        joined_value_ = argument.substr(mark + 1);
        argument.resize(mark);
      }
      SortDashed(argument == "-h" ? "--help" : argument == "-V" ? "--version" : argument);
      if (joined_value_ && error_.empty()) error_ = argument + " takes no value";
    }
  }

  // What is both an option and a verb is an option after a verb that it goes with.
  void SortDashed(const std::string& name) {
    const auto* const option = std::ranges::find(kOptions, name, &option_rule::name);
    const bool is_verb = std::ranges::count(kVerbs, name, &verb_rule::name) > 0;
    if (option != std::end(kOptions) && (!is_verb || GoesWith(*option, verb_->name))) {
      SortOption(*option);
    } else {
      SortVerb(name);
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
    if (joined_value_) {
      const std::string value = std::exchange(joined_value_, std::nullopt).value_or("");
      if (!value.empty()) return value;
    } else if (!rest_.empty() && IsValue(rest_.front())) {
      return Take();
    }
    error_ = std::string(name) + " needs " + std::string(meaning);
    return {};
  }

  static bool IsValue(const std::string& word) {
    return !word.empty() && (!word.starts_with('-') || word == kStream);
  }

  void CheckWhole() {
    const std::size_t names = typed_.names.size();
    for (const option_rule& option : kOptions) {
      if (typed_.Option(option.name) == nullptr || GoesWith(option, verb_->name)) continue;
      error_ = std::string(option.name) + " goes with " + std::string(option.verbs) + " only";
      return;
    }
    if (names < verb_->least_names) {
      error_ = std::string(verb_->name) + " needs a " + std::string(verb_->named);
    } else if (names > verb_->most_names) {
      error_ = "extra argument " + Quoted(typed_.names[verb_->most_names]);
    } else if (std::ranges::count(typed_.names, "") > 0) {
      error_ = "a " + std::string(verb_->named) + " has no name";
    } else if (const std::string* const old = typed_.Option("--diff");
               std::ranges::count(typed_.names, kStream) + (old != nullptr && *old == kStream) >
               1) {
      error_ = "standard input can be read once";
    }
  }

  std::span<const std::string> rest_;
  const verb_rule* verb_ = kVerbs;
  bool only_names_ = false;
  std::optional<std::string> joined_value_;  // of the option that is being sorted
  typed_words typed_;
  std::string error_;
};

}  // namespace

command_line ParseCommandLine(std::span<const std::string> arguments) {
  return parser(arguments).Parse();
}

std::string_view UsageText() {
  return R"(usage: mardel [--welcome] [DESIGN.mrd]
       mardel --generate OUT.dvc [--preprocess | --program N] [--werror] DESIGN.mrd
       mardel --check [--format F] [--werror] DESIGN.mrd...
       mardel --explain [--format F] DESIGN.mrd
       mardel --diff [--format F] [OLD.mrd] NEW.mrd
       mardel --merge BASE.mrd OURS.mrd THEIRS.mrd
       mardel --render OUT.{png,svg,pdf} [--scale S] [--grid] [--crop]
              [--diff OLD.mrd] [--format F] DESIGN.mrd
       mardel --list [LIBRARY]
       mardel --init [FOLDER]
       mardel --recover
       mardel --history DESIGN.mrd [N]
       mardel --help
       mardel --version

Without an option the window opens, with the design if one is given.

"-" is standard input as a design, standard output as OUT.

  --welcome           first do as --init, for a user without that folder and
                      without a configuration
  --generate OUT.dvc  write the design's source file
  --preprocess        then run the preprocessor on it
  --program N         then run the preprocessor, and the assembler to store the
                      program in location N (0 to 15)
  --check             name every problem of the designs, and what looks like a
                      mistake as a warning
  --werror            let a warning refuse a design
  --explain           tell which register each wire becomes and why, and each
                      block's line of the source
  --diff              tell what changed from OLD to NEW in words, or all that
                      NEW holds; with --render, mark it in the picture
  --merge             bring OURS and THEIRS, both made from BASE, together in
                      OURS, and name what conflicts
  --format F          text, gcc, json or sarif for --check; text or json for
                      --explain and --diff; png, svg or pdf for --render
  --render OUT        draw the design into a PNG, SVG or PDF file
  --scale S           enlarge the picture (0.25 to 8)
  --grid              draw the grid too
  --crop              cut the picture to what is drawn and 20 pixels around it
  --list              name the libraries, or describe the blocks of one
  --init              make a folder with sample designs, their libraries and a
                      configuration; without a name it is "Dravik programs"
                      in the Documents folder, which needs no configuration
  --recover           move unsaved work of programs that died to the folder
                      Recovered, beside the designs, and name it
  --history           list the versions of the design that saves replaced, or
                      print the one of number N
  --config FILE       read this configuration instead of Mardel.con
  --libraries FOLDER  read the libraries of this folder
  -h, --help          show how mardel is called
  -V, --version       show the version

Exit status: 0 done, or no difference; 1 a design or a tool refused, designs
differ or conflict; 2 wrong usage; 3 a file could not be read or written, or a
tool or the window could not be started.
)";
}

}  // namespace mardel
