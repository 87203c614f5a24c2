// The libraries that a fixture's design is made of, and the work on that design.
#pragma once

#include <filesystem>

#include "app/reports.h"
#include "codegen/design_file.h"
#include "codegen/source_writer.h"
#include "library/library_loader.h"
#include "tests/library/description.h"
#include "tests/support/fixed_moment.h"

namespace mardel {

// The built-in libraries and those in a folder, in expert mode where it holds a file "expert".
struct library_folder {
  explicit library_folder(const std::filesystem::path& folder) {
    if (std::filesystem::exists(folder / "expert")) mode = expert_mode::kOn;
    loaded_libraries loaded = LoadLibraries(folder.string() + "/", mode, 26, metrics);
    set = std::move(loaded.libraries);
    Tell(loaded.reports);
  }
  load_status Load(const std::string& path, const char* line_separator = "\n") {
    loaded_design loaded = LoadDesign(path, {set, metrics, line_separator});
    document = std::move(loaded.document);
    Tell(loaded.reports);
    return loaded.status;
  }
  // Without the check, so that the writer meets what it would refuse.
  source_result Generate(const std::string& path) {
    messages.clear();
    const auto nodes = BuildNetlist(document, pool);
    source_result result =
        WriteSource(document, std::get<0>(nodes), pool, {path, FixedMoment(), mode});
    if (result.problem) Tell({*result.problem});
    return result;
  }
  void Tell(const std::vector<report>& reports) {
    for (const report& told : reports) messages += "message " + ReportLine(told.text) + '\n';
  }
  expert_mode mode = expert_mode::kOff;
  byte_metrics metrics;
  library_set set;
  register_pool pool = ChipRegisters();
  std::string messages;
  design document;
};

}  // namespace mardel
