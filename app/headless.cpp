#include "app/headless.h"

#include <algorithm>
#include <iostream>
#include <memory>

#include "app/generation.h"
#include "app/headless_program.h"
#include "app/reports.h"
#include "codegen/design_check.h"
#include "codegen/source_writer.h"
#include "codegen/toolchain.h"
#include "codegen/version.h"
#include "library/block_directory.h"
#include "platform/desktop.h"
#include "platform/path.h"

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

exit_status RunTools(const settings& options, const toolchain_request& asked) {
  host_process_runner runner;
  error_lines boxes;
  switch (RunToolchain(asked, {.options = options, .runner = runner, .boxes = boxes})) {
    case toolchain_result::kDone:
      return exit_status::kDone;
    case toolchain_result::kToolFailed:
      return exit_status::kRefused;
    case toolchain_result::kToolNotStarted:
      break;
  }
  return Fail(exit_status::kFileOrToolMissing,
              "a tool in the folder " + options.exec_path + " could not be started");
}

exit_status CheckFile(const headless_program& run, const std::string& path) {
  const std::string prefix = path + ": ";
  const loaded_design loaded = Load(run, path, prefix);
  std::vector<report> problems = FindTypeMismatches(loaded.document, problem_search::kAll);
  std::ranges::move(CheckDesign(loaded.document, problem_search::kAll),
                    std::back_inserter(problems));
  for (const report& problem : problems) Print(problem, prefix);
  return problems.empty() ? StatusOf(loaded) : exit_status::kRefused;
}

std::string LibraryLines(const library_set& set) {
  std::string lines;
  for (const library& each : set.Libraries()) lines += each.name + " : " + each.desc + "\n";
  return lines;
}

// The blocks as the block directory words them, an empty line between two.
std::string BlockTexts(const library_set& set, const std::string& name) {
  const std::vector<tree_item> tree = DirectoryTree(set);
  std::string texts;
  const std::string* current = nullptr;
  for (std::size_t i = 0; i < tree.size(); ++i) {
    if (tree[i].level == 0) {
      current = &tree[i].text;
    } else if (current != nullptr && *current == name) {
      texts += (texts.empty() ? "" : "\n") + DirectoryText(set, tree, static_cast<int>(i));
    }
  }
  return texts;
}

}  // namespace

exit_status Run(const generate_request& asked) {
  const std::string output = AbsolutePath(asked.output);
  if (IsSameFile(output, asked.design)) {
    return Run(usage_error{"the output would replace the design " + asked.design});
  }
  const auto measures = FixedTextMetrics();
  headless_program run(*measures);
  loaded_design loaded = Load(run, asked.design);
  if (StatusOf(loaded) != exit_status::kDone) return StatusOf(loaded);
  const auto nodes = ReadyNodes(loaded.document, run.registers);
  if (const auto* refused = std::get_if<report>(&nodes)) {
    Print(*refused);
    return exit_status::kRefused;
  }
  const source_result source =
      WriteSource(loaded.document, std::get<0>(nodes), run.registers,
                  {.path = output, .moment = Now(), .mode = run.options.expert});
  if (source.problem) Print(*source.problem);
  switch (source.status) {
    case write_status::kFailed:
    case write_status::kDamaged:
      return exit_status::kFileOrToolMissing;
    case write_status::kNotCreated:
      return Fail(exit_status::kFileOrToolMissing, asked.output + " could not be written");
    case write_status::kWritten:
      break;
  }
  if (source.problem) return exit_status::kRefused;
  return RunTools(run.options, {output, asked.steps, asked.location});
}

exit_status Run(const check_request& asked) {
  const auto measures = FixedTextMetrics();
  const headless_program run(*measures);
  exit_status worst = exit_status::kDone;
  for (const std::string& path : asked.designs) worst = std::max(worst, CheckFile(run, path));
  return worst;
}

exit_status Run(const list_request& asked) {
  const auto measures = FixedTextMetrics();
  const headless_program run(*measures);
  if (asked.library.empty()) return WriteOut(LibraryLines(run.libraries));
  if (run.libraries.FindLibrary(asked.library) == nullptr) {
    return Fail(exit_status::kRefused, "there is no library " + asked.library);
  }
  return WriteOut(BlockTexts(run.libraries, asked.library));
}

exit_status Run(const help_request& /*asked*/) {
  return WriteOut(std::string(UsageText()));
}

exit_status Run(const version_request& /*asked*/) {
  return WriteOut("Mardel " + std::string(VersionText()) + "\n");
}

exit_status Run(const usage_error& wrong) {
  std::cerr << "mardel: " << wrong.text << '\n' << UsageText() << std::flush;
  return exit_status::kWrongUsage;
}

}  // namespace mardel
