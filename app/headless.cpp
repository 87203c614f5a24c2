#include "app/headless.h"

#include <iostream>

#include "app/headless_program.h"
#include "codegen/version.h"
#include "library/block_directory.h"
#include "platform/desktop.h"
#include "platform/path.h"

namespace mardel {
namespace {

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
  for (const tree_item& each : tree) {
    if (each.level == 0) {
      current = &each.text;
    } else if (current != nullptr && *current == name) {
      texts += (texts.empty() ? "" : "\n") + BlockText(set, name, each.text);
    }
  }
  return texts;
}

}  // namespace

exit_status Run(const list_request& asked) {
  const auto measures = FixedTextMetrics();
  const headless_program run(*measures, asked.from);
  PrintReports(run.reports);
  if (run.status != exit_status::kDone) return run.status;
  if (asked.library.empty()) return WriteOut(LibraryLines(run.libraries));
  if (run.libraries.FindLibrary(asked.library) == nullptr) {
    return Fail(exit_status::kRefused, "there is no library " + asked.library);
  }
  std::string texts = BlockTexts(run.libraries, asked.library);
  std::erase(texts, '\r');
  return WriteOut(texts);
}

exit_status Run(const help_request& /*asked*/) {
  return WriteOut(UsageText());
}

exit_status Run(const version_request& /*asked*/) {
  return WriteOut("Mardel " + std::string(VersionText()) + "\n");
}

exit_status Run(const usage_error& wrong) {
  const exit_status told = Fail(exit_status::kWrongUsage, wrong.text);
  std::cerr << "try mardel --help" << '\n';
  return told;
}

}  // namespace mardel
