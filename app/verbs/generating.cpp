#include "app/verbs/generating.h"

#include <iostream>
#include <optional>

#include "app/reports.h"
#include "app/verbs/checking.h"
#include "app/verbs/input.h"
#include "codegen/findings/warnings.h"
#include "codegen/source_writer.h"
#include "codegen/toolchain.h"
#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/escaping.h"
#include "platform/file_reasons.h"
#include "platform/path.h"
#include "platform/text.h"

namespace mardel {
namespace {

// What a tool that failed has said.
class error_lines : public message_boxes {
 public:
  answer ShowMessage(const message& shown) override {
    std::cerr << ReportLine(shown) << std::endl;
    return answer::kOk;
  }
};

// Says which programs can't be started.
class naming_runner : public process_runner {
 public:
  tool_result RunTool(const std::string& program, const std::string& arguments) override {
    tool_result result = host_.RunTool(program, arguments);
    if (!result.started) {
      (void)Fail(exit_status::kFileOrToolMissing,
                 program + " could not be started (" + StartingFailure(program) + ")");
    }
    return result;
  }

 private:
  host_process_runner host_;
};

exit_status RunTools(const settings& options, const toolchain_request& asked) {
  naming_runner runner;
  error_lines boxes;
  switch (RunToolchain(asked, {.options = options, .runner = runner, .boxes = boxes})) {
    case toolchain_result::kDone:
      return exit_status::kDone;
    case toolchain_result::kToolFailed:
      return exit_status::kRefused;
    case toolchain_result::kToolNotStarted:
      break;
  }
  return exit_status::kFileOrToolMissing;
}

// Tools get their paths in quotes that nothing escapes.
void WarnOfQuotes(const settings& options, const std::string& output,
                  std::vector<found_report>& warnings) {
  for (const std::string& path : {output, options.libraries_path}) {
    if (path.find('"') == std::string::npos) continue;
    warnings.push_back({.file = path,
                        .what = Warning(rule::kQuoteInPath, "Path Warning",
                                        "A double quote splits this path for the tools", {})});
  }
}

// What is wrong before a file is read; nothing when nothing is.
std::optional<usage_error> FindMisuse(const generate_request& asked, const std::string& output) {
  if (asked.output != kStream && IsSameFile(output, asked.design)) {
    return usage_error{"the output would replace the design " + asked.design};
  }
  if (asked.steps != run_option::kSourceOnly && IsTooShortForTools(output)) {
    return usage_error{"no tool runs on a path as short as " + output};
  }
  if (!Moment()) return usage_error{"SOURCE_DATE_EPOCH is not a number of seconds since 1970"};
  return std::nullopt;
}

// `shown` is the path as the command line has it.
exit_status Write(checked_design& checked, headless_program& run, const source_request& asked,
                  const std::string& shown) {
  if (asked.path == kStream) {
    return WriteOut(SourceText(checked.document, checked.nodes, run.registers, asked).text);
  }
  const source_result source = WriteSource(checked.document, checked.nodes, run.registers, asked);
  if (source.status == write_status::kWritten) return exit_status::kDone;
  const std::string reason = " (" + WritingFailure(asked.path, source.status) + ")";
  if (!source.problem) {
    return Fail(exit_status::kFileOrToolMissing, shown + " could not be written" + reason);
  }
  std::cerr << EscapeControls(ReportLine(source.problem->text) + reason) << std::endl;
  return exit_status::kFileOrToolMissing;
}

}  // namespace

exit_status Run(const generate_request& asked) {
  const bool is_stream = asked.output == kStream;
  const std::string output = is_stream ? asked.output : AbsolutePath(asked.output);
  if (const auto misuse = FindMisuse(asked, output)) return Run(*misuse);
  const auto measures = FixedTextMetrics();
  headless_program run(*measures, asked.from);
  PrintReports(run.reports);
  if (run.status != exit_status::kDone) return run.status;
  checked_design checked = CheckInput(run, asked.design);
  if (asked.steps != run_option::kSourceOnly) WarnOfQuotes(run.options, output, checked.warnings);
  PrintRefusal(checked);
  PrintReports(checked.warnings);
  const exit_status refused = StatusOf(checked, asked.warnings);
  if (refused != exit_status::kDone) return refused;
  const source_request source{.path = output, .moment = *Moment(), .mode = run.options.expert};
  const exit_status written = Write(checked, run, source, asked.output);
  if (written != exit_status::kDone || is_stream) return written;
  return RunTools(run.options, {output, asked.steps, asked.location});
}

}  // namespace mardel
