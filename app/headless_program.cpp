#include "app/headless_program.h"

#include <iostream>
#include <utility>

#include "app/configuration.h"
#include "app/startup.h"
#include "library/library_loader.h"
#include "platform/escaping.h"
#include "platform/file_reasons.h"
#include "platform/files.h"
#include "platform/path.h"

namespace mardel {
namespace {

report Missing(const char* what, const std::string& path, const std::string& reason) {
  return {.kind = rule::kSettingsNotRead,
          .text = {"Error Loading Settings",
                   std::string(what) + " " + path + " could not be read (" + reason + ")"},
          .file = path};
}

configuration ReadFrom(const std::string& path, const host_facts& host) {
  configuration read{.options = DefaultSettings(host.kind, host.folders), .path = path};
  if (IsRegularFile(path)) {
    read.reports = LoadConfiguration(read.options, path);
  } else {
    read.reports.push_back(Missing("Configuration", path, ReadingFailure(path)));
  }
  return read;
}

}  // namespace

headless_program::headless_program(const text_metrics& measures, const setting_paths& from)
    : metrics(measures), registers(ChipRegisters()) {
  const host_facts host = ThisHost();
  const bool is_named = !from.configuration.empty();
  const configuration read =
      is_named ? ReadFrom(from.configuration, host) : ReadConfiguration(host);
  options = read.options;
  for (const report& told : read.reports) reports.push_back({.file = read.path, .what = told});
  if (is_named && !reports.empty()) status = exit_status::kFileOrToolMissing;
  if (!from.libraries.empty()) {
    options.libraries_path = from.libraries;
    EndFolderWithSlash(options.libraries_path);
    const std::string failure = ListingFailure(from.libraries);
    if (!failure.empty()) {
      reports.push_back(
          {.file = from.libraries, .what = Missing("Folder", from.libraries, failure)});
      status = exit_status::kFileOrToolMissing;
    }
  }
  constexpr int kFirstId = 1;  // no menu asks for it
  loaded_libraries loaded =
      LoadLibraries(options.libraries_path, options.expert, kFirstId, metrics);
  libraries = std::move(loaded.libraries);
  for (const report& told : loaded.reports) reports.push_back({.file = told.file, .what = told});
}

void PrintReports(std::span<const found_report> reports) {
  std::string lines;  // standard error writes each piece at once
  for (const found_report& each : reports) lines += ReportText(each) + '\n';
  std::cerr << lines;
  std::cerr << std::flush;
}

exit_status WriteOut(std::string_view text) {
  std::cout << text << std::flush;
  return std::cout ? exit_status::kDone
                   : Fail(exit_status::kFileOrToolMissing, "standard output could not be written");
}

exit_status Fail(exit_status status, const std::string& line) {
  std::cerr << "mardel: " << EscapeControls(line) << '\n';
  return status;
}

load_context LoadContext(const headless_program& run) {
  return {.libraries = run.libraries,
          .metrics = run.metrics,
          .line_separator = LineSeparator(HostKind())};
}

}  // namespace mardel
