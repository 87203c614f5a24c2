#include "app/recovery_verbs.h"

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <optional>

#include "app/headless_program.h"
#include "app/history.h"
#include "app/recovery.h"
#include "app/startup.h"
#include "platform/escaping.h"
#include "platform/files.h"
#include "platform/state_folder.h"

namespace mardel {
namespace {

exit_status Finish() {
  std::cout.flush();
  return std::cout ? exit_status::kDone
                   : Fail(exit_status::kFileOrToolMissing, "standard output could not be written");
}

void PrintPaths(const char* what, const std::vector<std::string>& paths) {
  for (const std::string& path : paths) std::cout << what << ": " << EscapeControls(path) << '\n';
}

void PrintVersion(const design_version& version) {
  const date_time& saved = version.facts.written;
  char line[120];
  std::snprintf(line, sizeof line, "%d  %04d-%02d-%02d %02d:%02d:%02d  %zu bytes\n", version.number,
                saved.year, saved.month, saved.day, saved.hour, saved.minute, saved.second,
                version.facts.size);
  std::cout << line;
}

}  // namespace

exit_status Run(const recover_request& /*asked*/) {
  const configuration read = ReadConfiguration(ThisHost());
  for (const report& told : read.reports) PrintReports({{{.file = read.path, .what = told}}});
  const recovered_designs found = RecoverDesigns(StateFolder(), read.options.files_path);
  PrintPaths("recovered", found.moved);
  PrintPaths("in use", found.in_use);
  PrintPaths("left", found.stayed);
  const exit_status printed = Finish();
  if (found.stayed.empty()) return printed;
  return Fail(exit_status::kFileOrToolMissing,
              "what is left could not be moved to " + found.folder);
}

exit_status Run(const history_request& asked) {
  const std::vector<design_version> versions = Versions(StateFolder(), asked.design);
  if (!asked.number) {
    if (versions.empty()) {
      return Fail(exit_status::kRefused, "no version of " + asked.design + " was kept");
    }
    std::ranges::for_each(versions, PrintVersion);
    return Finish();
  }
  const auto chosen = std::ranges::find(versions, *asked.number, &design_version::number);
  if (chosen == versions.end()) {
    return Fail(exit_status::kRefused,
                "there is no version " + std::to_string(*asked.number) + " of " + asked.design);
  }
  const std::optional<std::string> bytes = ReadFile(chosen->path);
  if (!bytes) return Fail(exit_status::kFileOrToolMissing, chosen->path + " could not be read");
  std::cout << *bytes;
  return Finish();
}

}  // namespace mardel
