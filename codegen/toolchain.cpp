#include "codegen/toolchain.h"

#include "platform/text.h"
#include "platform/utf8.h"

namespace mardel {
namespace {

constexpr const char* kPowerCycle =
    "Board may be in an undetermined state, please power cycle it after closing this window";

std::string Quoted(const std::string& text) {
  return '"' + text + '"';
}

std::string WithoutLastCharacters(std::string text, int count) {
  for (; count > 0 && !text.empty(); --count) {
    while (text.size() > 1 && IsContinuation(text.back())) text.pop_back();
    text.pop_back();
  }
  return text;
}

// How the report of a failed tool is put together.
struct failure_report {
  const char* before_code;
  const char* after_code;
  const char* warning;
};
constexpr failure_report kPreprocessorReport = {"\r\r", "", ""};
constexpr failure_report kAssemblerReport = {"\r\r", "\r\r", kPowerCycle};
// kept: nothing stands between the output and the code.
constexpr failure_report kEndOfRunReport = {"", "\r\r", kPowerCycle};

toolchain_result RunReporting(const std::string& program, const std::string& arguments,
                              const failure_report& report, const toolchain_context& context) {
  const tool_result ended = context.runner.RunTool(program, arguments);
  if (!ended.started) return toolchain_result::kToolNotStarted;
  if (ended.exit_code == 0) return toolchain_result::kDone;
  context.boxes.ShowMessage({"ERROR", ended.output + report.before_code +
                                          "Exitcode: " + std::to_string(ended.exit_code) +
                                          report.after_code + report.warning});
  return toolchain_result::kToolFailed;
}

toolchain_result Preprocess(const std::string& source_path, const toolchain_context& context) {
  const settings& s = context.options;
  const std::string arguments =
      "-l " + Quoted(WithoutLastCharacters(s.libraries_path, 1)) + ' ' + Quoted(source_path);
  return RunReporting(s.exec_path + s.pre_exe, arguments, kPreprocessorReport, context);
}

toolchain_result Assemble(const toolchain_request& asked, const toolchain_context& context) {
  const settings& s = context.options;
  const std::string preprocessed = WithoutLastCharacters(asked.source_path, 3) + "dvo";
  const std::string target = asked.location ? "-p " + std::to_string(*asked.location) : "-re";
  return RunReporting(s.exec_path + s.asm_exe,
                      target + " -i " + s.dravik_i2c + ' ' + Quoted(preprocessed), kAssemblerReport,
                      context);
}

// The program runs on the board for as long as the box is open.
toolchain_result RunUntilClosed(const toolchain_context& context) {
  context.boxes.ShowMessage({"Running", "Running from RAM, close this window to end",
                             message_buttons::kOk, message_icon::kNote});
  const settings& s = context.options;
  return RunReporting(s.exec_path + s.asm_exe, "-ee -i " + s.dravik_i2c, kEndOfRunReport, context);
}

}  // namespace

bool IsTooShortForTools(std::string_view source_path) {
  constexpr std::size_t kShortestPath = 6;
  return CountCharacters(source_path) < kShortestPath;
}

toolchain_result RunToolchain(const toolchain_request& asked, const toolchain_context& context) {
  const bool is_run = asked.steps == run_option::kRun;
  if (IsTooShortForTools(asked.source_path)) return toolchain_result::kDone;
  if (!is_run && asked.steps != run_option::kPreprocess) return toolchain_result::kDone;
  // kept: a preprocessor that could not be started stops nothing, an older output may stand there.
  const toolchain_result preprocessed = Preprocess(asked.source_path, context);
  if (!is_run || preprocessed == toolchain_result::kToolFailed) return preprocessed;
  toolchain_result assembled = Assemble(asked, context);
  if (assembled == toolchain_result::kDone && !asked.location) assembled = RunUntilClosed(context);
  return assembled == toolchain_result::kDone ? preprocessed : assembled;
}

}  // namespace mardel
