// What tells of the command line tells the same: --help, the manual page, the completion.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>
#include <set>

#include "app/command_line.h"
#include "tests/support/files.h"

namespace mardel {
namespace {

const std::string kShare = std::string(MARDEL_SOURCE_DIR) + "/share/";

std::string Plain(std::string text) {
  std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::tolower(c); });
  return std::regex_replace(text, std::regex("\\s+"), " ");
}

std::string Manual() {
  const scratch_folder folder;
  const std::string text = folder.Path() + "text";
  const std::string command = "mandoc -T ascii -O width=999 " + kShare + "man/man1/mardel.1";
  EXPECT_EQ(std::system((command + " >" + text).c_str()), 0);
  static const std::regex overstruck(".\b");
  return Plain(std::regex_replace(ReadAll(text), overstruck, ""));
}

std::set<std::string> Options(const std::string& text) {
  static const std::regex option("--[a-z]+");
  return {std::sregex_token_iterator(text.begin(), text.end(), option), {}};
}

TEST(Manual, SaysTheSameAsHelp) {
  const std::string help(UsageText());
  const std::string manual = Manual();
  static const std::regex between("usage: |\n       (?=mardel)|\n  (?=-)|[:;]\\s|\\.?\n(\n|$)");
  for (std::sregex_token_iterator at(help.begin(), help.end(), between, -1), end; at != end; ++at) {
    EXPECT_THAT(manual, testing::HasSubstr(Plain(*at)));
  }
  EXPECT_EQ(Options(help), Options(manual));
  EXPECT_EQ(Options(help), Options(ReadAll(kShare + "bash-completion/completions/mardel")));
}

}  // namespace
}  // namespace mardel
