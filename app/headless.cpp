#include "app/headless.h"

#include <algorithm>
#include <iostream>
#include <memory>

#include "app/generation.h"
#include "app/headless_program.h"
#include "app/paths.h"
#include "app/render.h"
#include "codegen/netlist.h"
#include "library/block_directory.h"
#include "platform/desktop.h"

namespace mardel {
namespace {

int RunToolsFor(program& app, const command_line& asked, const std::string& source) {
  app.options.run_opt = asked.tools == tool_steps::kPreprocess ? 1 : 0;
  switch (RunTools(app, source, asked.location)) {
    case toolchain_result::kDone:
      return kDone;
    case toolchain_result::kToolFailed:
      return kRefused;
    case toolchain_result::kToolNotStarted:
      return Fail(kFileOrToolMissing,
                  "a tool in the folder " + app.options.exec_path + " could not be started");
  }
  return kRefused;
}

int GenerateFile(const command_line& asked) {
  const std::string& path = asked.names.front();
  const std::string output = AbsolutePath(asked.output);
  if (IsSameFile(output, path)) {
    return ReportWrongUsage({"the output would replace the design " + path});
  }
  const auto measures = FixedTextMetrics();
  headless_program headless(output, *measures);
  program& app = headless.app;
  if (const int status = LoadWhole(app, path); status != kDone) return status;
  const std::optional<source_result> source = GenerateSource(app);
  if (!source) return kRefused;
  if (source->status == write_status::kFailed) return kFileOrToolMissing;  // has been reported
  if (source->status == write_status::kNotCreated) {
    return Fail(kFileOrToolMissing, asked.output + " could not be written");
  }
  if (!source->is_complete) return kRefused;
  return asked.tools == tool_steps::kNone ? kDone : RunToolsFor(app, asked, output);
}

int CheckFile(headless_program& headless, const std::string& path) {
  headless.desk.prefix = path + ": ";
  const design& document = headless.app.work.document;
  const int loaded = LoadWhole(headless.app, path);
  if (loaded == kFileOrToolMissing) return loaded;
  std::vector<design_problem> problems = FindTypeMismatches(document, problem_search::kAll);
  std::ranges::move(FindUnsetAndUnconnected(document, problem_search::kAll),
                    std::back_inserter(problems));
  for (const design_problem& problem : problems) headless.desk.ShowMessage(problem.report);
  return problems.empty() ? loaded : kRefused;
}

int CheckFiles(const command_line& asked) {
  const auto measures = FixedTextMetrics();
  headless_program headless("", *measures);
  int worst = kDone;
  for (const std::string& path : asked.names) worst = std::max(worst, CheckFile(headless, path));
  return worst;
}

int Print(std::string text) {
  std::erase(text, '\r');
  std::cout << text << std::flush;
  return std::cout ? kDone : Fail(kFileOrToolMissing, "standard output could not be written");
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

int List(const command_line& asked) {
  const auto measures = FixedTextMetrics();
  headless_program headless("", *measures);
  const library_set& set = headless.app.libraries;
  if (asked.names.empty()) return Print(LibraryLines(set));
  const std::string& name = asked.names.front();
  if (set.FindLibrary(name) == nullptr) return Fail(kRefused, "there is no library " + name);
  return Print(BlockTexts(set, name));
}

}  // namespace

int RunHeadless(const command_line& asked) {
  switch (asked.action) {
    case verb::kGenerate:
      return GenerateFile(asked);
    case verb::kCheck:
      return CheckFiles(asked);
    case verb::kRender:
      return RenderFile(asked);
    case verb::kList:
      return List(asked);
    case verb::kVersion:
      return Print(std::string("Mardel ") + kVersionText + "\n");
    case verb::kHelp:
    case verb::kWindow:
      break;
  }
  return Print(std::string(UsageText()));
}

int ReportWrongUsage(const usage_error& error) {
  std::cerr << "mardel: " << error.text << '\n' << UsageText() << std::flush;
  return kWrongUsage;
}

}  // namespace mardel
