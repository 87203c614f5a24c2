// Runs the transcripts in tests/fixtures/headless with the real program: a line "$ " is a command,
// "| " its standard output, "! " its standard error, and [N] its exit status. Each transcript gets
// a fresh copy of tests/fixtures/headless_files, which it calls FOLDER.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <sstream>

#include "tests/support/files.h"

namespace mardel {
namespace {

std::string Prefixed(const std::string& prefix, const std::string& path) {
  std::istringstream lines(ReadAll(path));
  std::string text;
  for (std::string line; std::getline(lines, line);) text += prefix + line + "\n";
  return text;
}

std::string RunCommand(const std::string& command, const scratch_folder& folder) {
  const scratch_folder streams;
  WriteAll(streams.Path() + "script",
           "export HOME=" + streams.Path() + " XDG_CONFIG_HOME=" + streams.Path() +
               " LC_ALL=C.UTF-8\nmardel() { " MARDEL_BINARY " \"$@\"; }\ncd " + folder.Path() +
               "\n" + command + "\n");
  const std::string out = streams.Path() + "out";
  const std::string err = streams.Path() + "err";
  const int status = std::system(("sh " + streams.Path() + "script >" + out + " 2>" + err).c_str());
  return "$ " + command + "\n" + Prefixed("| ", out) + Prefixed("! ", err) + "[" +
         std::to_string(WEXITSTATUS(status)) + "]\n";
}

TEST(Headless, BehavesLikeEachTranscript) {
  const auto files = std::filesystem::path(MARDEL_SOURCE_DIR) / "tests/fixtures/headless_files";
  for (const auto& transcript : Fixtures("headless")) {
    const scratch_folder folder;
    std::filesystem::copy(files, folder.Path(), std::filesystem::copy_options::recursive);
    std::istringstream lines(ReadAll(transcript));
    std::string actual;
    for (std::string line; std::getline(lines, line);) {
      if (line.starts_with("$ ")) actual += RunCommand(line.substr(2), folder);
    }
    const std::string path = folder.Path().substr(0, folder.Path().size() - 1);
    for (auto at = actual.find(path); at != std::string::npos; at = actual.find(path)) {
      actual.replace(at, path.size(), "FOLDER");
    }
    EXPECT_EQ(actual, ReadAll(transcript)) << transcript;
  }
}

}  // namespace
}  // namespace mardel
