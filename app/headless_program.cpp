#include "app/headless_program.h"

#include <iostream>
#include <utility>

#include "app/reports.h"
#include "app/startup.h"
#include "library/library_loader.h"

namespace mardel {

headless_program::headless_program(const text_metrics& measures)
    : metrics(measures), registers(ChipRegisters()) {
  configuration read = ReadConfiguration(ThisHost());
  options = std::move(read.options);
  for (const report& told : read.reports) Print(told);
  constexpr int kFirstId = 1;  // no menu asks for it
  loaded_libraries loaded =
      LoadLibraries(options.libraries_path, options.expert, kFirstId, metrics);
  libraries = std::move(loaded.libraries);
  for (const report& told : loaded.reports) Print(told);
}

void Print(const report& told, const std::string& prefix) {
  std::cerr << prefix << ReportLine(told.text) << std::endl;
}

exit_status Fail(exit_status status, const std::string& line) {
  std::cerr << "mardel: " << line << std::endl;
  return status;
}

exit_status WriteOut(std::string text) {
  std::erase(text, '\r');
  std::cout << text << std::flush;
  return std::cout ? exit_status::kDone
                   : Fail(exit_status::kFileOrToolMissing, "standard output could not be written");
}

loaded_design Load(const headless_program& run, const std::string& path,
                   const std::string& prefix) {
  loaded_design loaded = LoadDesign(path, {.libraries = run.libraries,
                                           .metrics = run.metrics,
                                           .line_separator = LineSeparator(HostKind())});
  for (const report& told : loaded.reports) Print(told, prefix);
  return loaded;
}

exit_status StatusOf(const loaded_design& loaded) {
  if (loaded.status != load_status::kLoaded) return exit_status::kFileOrToolMissing;
  return loaded.reports.empty() ? exit_status::kDone : exit_status::kRefused;
}

}  // namespace mardel
