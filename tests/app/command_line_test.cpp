#include "app/command_line.h"

#include <gtest/gtest.h>

#include <sstream>

#include "tests/support/files.h"

namespace mardel {
namespace {

std::string Describe(const std::variant<command_line, usage_error>& parsed) {
  static const char* const verbs[] = {"window", "generate", "check",  "render",
                                      "list",   "help",     "version"};
  if (const auto* wrong = std::get_if<usage_error>(&parsed)) return "error " + wrong->text;
  const command_line& asked = std::get<command_line>(parsed);
  std::string text = verbs[static_cast<int>(asked.action)];
  if (!asked.output.empty()) text += " output " + asked.output;
  if (asked.tools == tool_steps::kPreprocess) text += " preprocess";
  if (asked.tools == tool_steps::kProgram) text += " program " + std::to_string(asked.location);
  std::ostringstream scale;
  scale << asked.scale;
  if (asked.scale != 1) text += " scale " + scale.str();
  if (asked.lines == grid::kShown) text += " grid";
  if (asked.area == picture_area::kDrawn) text += " crop";
  if (!asked.names.empty()) text += " names";
  for (const std::string& name : asked.names) text += " " + name;
  return text;
}

// Each line of the fixtures: arguments, " => ", what they mean.
TEST(CommandLine, MeansThis) {
  for (const auto& fixture : Fixtures("command_line")) {
    std::istringstream lines(ReadAll(fixture));
    for (std::string line; std::getline(lines, line);) {
      const std::size_t arrow = line.find(" => ");
      std::istringstream words(line.substr(0, arrow));
      std::vector<std::string> arguments;
      for (std::string word; words >> word;) arguments.push_back(word == "''" ? "" : word);
      EXPECT_EQ(Describe(ParseCommandLine(arguments)), line.substr(arrow + 4)) << line;
    }
  }
}

}  // namespace
}  // namespace mardel
