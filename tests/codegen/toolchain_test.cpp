#include "codegen/toolchain.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <deque>
#include <iomanip>
#include <sstream>

#include "tests/support/files.h"
#include "tests/support/scripted_ui.h"

namespace mardel {
namespace {

// Ends as scripted; its calls are recorded among those of the desk.
class scripted_runner : public process_runner {
 public:
  explicit scripted_runner(std::vector<std::string>& calls) : calls_(calls) {}
  // Exit codes in order, -1 for a tool that can't be started.
  std::deque<int> codes;

  tool_result RunTool(const std::string& program, const std::string& arguments) override {
    calls_.push_back(program + " " + arguments);
    const int code = codes.front();
    codes.pop_front();
    if (code < 0) return {};
    return {true, "said\rmore\r", code};
  }

 private:
  std::vector<std::string>& calls_;
};

settings Options() {
  settings options;
  options.libraries_path = "/libs/";
  options.exec_path = "/bin tools/";
  options.pre_exe = "pre";
  options.asm_exe = "asm";
  options.dravik_i2c = "0x30";
  return options;
}

// Fixtures hold run option, location, source and exit codes, and what is then run and shown.
TEST(Toolchain, RunsTheToolsAsTheRunOptionSays) {
  for (const auto& file : Fixtures("toolchain")) {
    std::istringstream lines(ReadAll(file));
    std::string location, source;
    scripted_ui desk;
    scripted_runner runner(desk.calls);
    settings options = Options();
    std::string first;
    std::getline(lines, first);
    std::istringstream words(first);
    words >> options.run_opt >> location >> std::quoted(source);
    for (int code = 0; words >> code;) runner.codes.push_back(code);

    const std::optional<int> program =
        location == "ram" ? std::nullopt : std::optional(std::stoi(location));
    const toolchain_result result = RunToolchain(source, program, {options, runner, desk});
    std::string outcome;
    for (const std::string& call : desk.calls) outcome += call + '\n';
    for (std::size_t at = 0; (at = outcome.find('\r')) != std::string::npos;) {
      outcome.replace(at, 1, "\\r");
    }
    const char* const names[] = {"done\n", "failed\n", "not started\n"};
    outcome += names[static_cast<int>(result)];
    EXPECT_EQ(outcome, std::string(std::istreambuf_iterator<char>(lines), {})) << file;
    EXPECT_TRUE(runner.codes.empty());
  }
}

}  // namespace
}  // namespace mardel
