#include "app/headless.h"

#include <algorithm>
#include <iostream>
#include <memory>

#include "app/generation.h"
#include "app/headless_program.h"
#include "app/paths.h"
#include "codegen/netlist.h"
#include "library/block_directory.h"
#include "platform/desktop.h"

namespace mardel {
namespace {

exit_status RunToolsFor(const program& app, const generate_request& asked,
                        const std::string& source) {
  switch (RunTools(app, {source, asked.steps, asked.location})) {
    case toolchain_result::kDone:
      return exit_status::kDone;
    case toolchain_result::kToolFailed:
      return exit_status::kRefused;
    case toolchain_result::kToolNotStarted:
      return Fail(exit_status::kFileOrToolMissing,
                  "a tool in the folder " + app.options.exec_path + " could not be started");
  }
  return exit_status::kRefused;
}

exit_status CheckFile(headless_program& headless, const std::string& path) {
  headless.desk.prefix = path + ": ";
  const design& document = headless.app.work.document;
  const exit_status loaded = LoadWhole(headless.app, path);
  if (loaded == exit_status::kFileOrToolMissing) return loaded;
  std::vector<design_problem> problems = FindTypeMismatches(document, problem_search::kAll);
  std::ranges::move(FindUnsetAndUnconnected(document, problem_search::kAll),
                    std::back_inserter(problems));
  for (const design_problem& problem : problems) headless.desk.ShowMessage(problem.report);
  return problems.empty() ? loaded : exit_status::kRefused;
}

exit_status Print(std::string text) {
  std::erase(text, '\r');
  std::cout << text << std::flush;
  return std::cout ? exit_status::kDone
                   : Fail(exit_status::kFileOrToolMissing, "standard output could not be written");
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
  headless_program headless(output, *measures);
  program& app = headless.app;
  const exit_status loaded = LoadWhole(app, asked.design);
  if (loaded != exit_status::kDone) return loaded;
  const std::optional<source_result> source = GenerateSource(app);
  if (!source) return exit_status::kRefused;
  if (source->status == write_status::kFailed) return exit_status::kFileOrToolMissing;  // reported
  if (source->status == write_status::kNotCreated) {
    return Fail(exit_status::kFileOrToolMissing, asked.output + " could not be written");
  }
  if (!source->is_complete) return exit_status::kRefused;
  return RunToolsFor(app, asked, output);
}

exit_status Run(const check_request& asked) {
  const auto measures = FixedTextMetrics();
  headless_program headless("", *measures);
  exit_status worst = exit_status::kDone;
  for (const std::string& path : asked.designs) {
    worst = std::max(worst, CheckFile(headless, path));
  }
  return worst;
}

exit_status Run(const list_request& asked) {
  const auto measures = FixedTextMetrics();
  const headless_program headless("", *measures);
  const library_set& set = headless.app.libraries;
  if (asked.library.empty()) return Print(LibraryLines(set));
  if (set.FindLibrary(asked.library) == nullptr) {
    return Fail(exit_status::kRefused, "there is no library " + asked.library);
  }
  return Print(BlockTexts(set, asked.library));
}

exit_status Run(const help_request& /*asked*/) {
  return Print(std::string(UsageText()));
}

exit_status Run(const version_request& /*asked*/) {
  return Print(std::string("Mardel ") + kVersionText + "\n");
}

exit_status Run(const usage_error& wrong) {
  std::cerr << "mardel: " << wrong.text << '\n' << UsageText() << std::flush;
  return exit_status::kWrongUsage;
}

}  // namespace mardel
