#include "platform/process.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <string>
#include <tuple>

#include "tests/support/files.h"

namespace mardel {
namespace {

namespace fs = std::filesystem;

// Tools are shell scripts in the current folder.
class process_test : public testing::Test {
 protected:
  process_test() { fs::current_path(scratch.Path()); }
  ~process_test() override { fs::current_path(before); }

  // The commands may leave a process's number behind in the file "child"; that process is ended.
  static tool_result Run(const std::string& commands, const std::string& arguments = "") {
    WriteAll("tool", "#!/bin/sh\n" + commands + "\n");
    fs::permissions("tool", fs::perms(0755));
    tool_result result = host_process_runner().RunTool("tool", arguments);
    if (fs::exists("child")) kill(std::stoi(ReadAll("child")), SIGKILL);
    fs::remove("child");
    return result;
  }
  const fs::path before = fs::current_path();
  const scratch_folder scratch;
};

TEST_F(process_test, EndsEachLineWithACarriageReturn) {
  const std::tuple<std::string, std::string, int> cases[] = {
      {"exit 0", "", 0},
      {R"(printf 'a\nb\n')", "a\rb\r", 0},
      {R"(printf 'a\nb')", "a\rb\r", 0},
      {R"(printf '\n\n')", "\r\r", 0},
      {R"(printf 'a\r\nb\r')", "a\r\rb\r\r", 0},
      {R"(printf '\377\303\n'; exit 255)", "\xff\xc3\r", 255},
      {"exec >&-; exit 3", "", 3},
      {"echo before; kill -SEGV $$", "before\r", 128 + 11},
      {"echo shown; echo hidden >&2", "shown\r", 0},
      {R"(cat; echo "$#:$1:$2")", "2:a b::\r", 0},
      {"pwd -P", fs::current_path().string() + "\r", 0},
      {"sleep 600 & echo $! >child; echo done; exit 4", "done\r", 4}};
  for (const auto& [commands, output, exit_code] : cases) {
    const tool_result result = Run(commands, R"("a b" ":")");
    EXPECT_TRUE(result.started);
    EXPECT_EQ(result.output, output) << commands;
    EXPECT_EQ(result.exit_code, exit_code) << commands;
  }
}

TEST_F(process_test, EndsWithTheToolWhateverItsChildrenDo) {
  const tool_result silent = Run("sleep 600 & echo $! >child; head -c 60000 /dev/zero; kill $$");
  EXPECT_EQ(silent.output, std::string(60'000, '\0') + "\r");
  EXPECT_EQ(silent.exit_code, 128 + 15);
  EXPECT_EQ(Run("yes & echo $! >child; exit 5").exit_code, 5);
}

TEST_F(process_test, KeepsMegabytesOfOutputInBounds) {
  const std::size_t half = kMostToolOutput / 2;
  // 6 bytes of "first\n" and 4 of "last" around the 100,000,000; "\r" after the last line.
  EXPECT_EQ(Run("echo first; head -c 100000000 /dev/zero | tr '\\0' x; printf last").output,
            "first\r" + std::string(half - 6, 'x') + "[... " +
                std::to_string(100'000'011 - 2 * half) + " bytes left out ...]" +
                std::string(half - 5, 'x') + "last\r");
}

TEST_F(process_test, TellsWhatCannotBeStarted) {
  WriteAll("not_executable", "#!/bin/sh\n");
  WriteAll("no_program", "text");
  fs::permissions("no_program", fs::perms(0755));
  fs::create_directory("folder");
  // The search path, which has "sh", is not asked.
  for (const char* name :
       {"missing", "not_executable", "folder", "no_program", "folder/x", "", "sh"}) {
    const tool_result result = host_process_runner().RunTool(name, "-c true");
    EXPECT_FALSE(result.started) << name;
    EXPECT_EQ(result.output, "");
  }
}

}  // namespace
}  // namespace mardel
