// The small functions of the room, by the table of their results.
#include "app/command_line.h"
#include "app/configuration.h"
#include "app/file_commands.h"
#include "tests/support/script.h"

namespace mardel {
namespace {

std::string Parse(const arguments& words) {
  static const char* const verbs[] = {"window", "generate", "check",  "render",
                                      "list",   "help",     "version"};
  const auto parsed = ParseCommandLine(words);
  if (const auto* wrong = std::get_if<usage_error>(&parsed)) return "error " + wrong->text;
  const command_line& asked = std::get<command_line>(parsed);
  std::ostringstream text;
  text << verbs[static_cast<int>(asked.action)];
  if (!asked.output.empty()) text << " output " << asked.output;
  if (asked.tools == tool_steps::kPreprocess) text << " preprocess";
  if (asked.tools == tool_steps::kProgram) text << " program " << asked.location;
  if (asked.scale != 1) text << " scale " << asked.scale;
  if (asked.lines == grid::kShown) text << " grid";
  if (asked.area == picture_area::kDrawn) text << " crop";
  if (!asked.names.empty()) text << " names";
  for (const std::string& name : asked.names) text << ' ' << name;
  return text.str();
}

std::string Defaults(const arguments& words) {
  static const std::map<std::string, host_kind> hosts{{"linux", host_kind::kLinux},
                                                      {"mac", host_kind::kMac},
                                                      {"windows", host_kind::kWindows},
                                                      {"other", host_kind::kOther}};
  const settings s = DefaultSettings(hosts.at(words[0]), {words[1], words[2], words[3]});
  return s.files_path + ' ' + s.libraries_path + ' ' + s.exec_path + s.pre_exe + ' ' + s.asm_exe;
}

TEST(AppFunctions, GiveWhatTheirTableSays) {
  ExpectTable("app.txt",
              {{"Parse", Parse},
               {"LineSeparator", [](auto& a) { return std::string(LineSeparator(a[0])); }},
               {"Defaults", Defaults}});
}

// The file in the current folder comes before that in the documents.
TEST(ConfigurationPath, IsThatOfAFileIfThereIsOne) {
  const scratch_folder here;
  const std::string own = here.Path() + "Mardel.con";
  const std::string without_slash = here.Path().substr(0, here.Path().size() - 1);
  std::filesystem::create_directory(own);
  EXPECT_EQ(ConfigurationPath(without_slash, "/d/"), "/d/Mardel.con");
  std::filesystem::remove(own);
  EXPECT_EQ(ConfigurationPath(without_slash, "/d/"), "/d/Mardel.con");
  WriteAll(own, "");
  EXPECT_EQ(ConfigurationPath(without_slash, "/d/"), own);
  EXPECT_EQ(ConfigurationPath(here.Path(), "/d/"), own);
  EXPECT_EQ(ConfigurationPath("", "/no/such/"), "/no/such/Mardel.con");
}

}  // namespace
}  // namespace mardel
