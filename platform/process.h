// Command-line tools as child processes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace mardel {

struct [[nodiscard]] tool_result {
  bool started = false;
  // Each line of the tool's standard output and "\r". Of more than kMostToolOutput bytes the middle
  // is left out, with a note of how much.
  std::string output;
  std::int64_t exit_code = 0;  // 128 + the signal's number when a signal ended the tool
};

// A message box lays out this much at once, even when it is a single line.
constexpr std::size_t kMostToolOutput = std::size_t{1} << 16U;
constexpr std::size_t kMostToolErrors = std::size_t{1} << 14U;

class process_runner {
 public:
  process_runner() = default;
  process_runner(const process_runner&) = delete;
  process_runner& operator=(const process_runner&) = delete;
  virtual ~process_runner() = default;

  // Runs `program` in the current folder and waits for its end. `arguments` is one text, split at
  // blanks outside double quotes; no shell sees it.
  virtual tool_result RunTool(const std::string& program, const std::string& arguments) = 0;
};

// The parts of `text` between blanks that stand outside double quotes, without the quotes. There
// are no escapes; a quote that nothing closes reaches to the end; "" is an argument without text.
std::vector<std::string> SplitArguments(std::string_view text);

// Where a tool's standard error goes.
enum class tool_errors {
  kPassedOn,  // to this process's
  kKept,      // behind its standard output, when the tool fails; bounded like that
};

// Starts real processes, with no standard input. Children that a tool leaves behind are not waited
// for. Arguments reach the tool byte for byte.
class host_process_runner : public process_runner {
 public:
  // `meanwhile` is called many times a second while a tool runs.
  explicit host_process_runner(tool_errors errors = tool_errors::kPassedOn,
                               std::function<void()> meanwhile = {});
  tool_result RunTool(const std::string& program, const std::string& arguments) override;

 private:
  tool_errors errors_;
  std::function<void()> meanwhile_;
};

}  // namespace mardel
