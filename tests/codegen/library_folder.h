// The libraries that a fixture's design is made of, and the work on that design.
#pragma once

#include <filesystem>

#include "codegen/design_file.h"
#include "codegen/source_writer.h"
#include "library/builtin_libraries.h"
#include "library/library_loader.h"
#include "tests/library/description.h"
#include "tests/support/fixed_clock.h"
#include "tests/support/scripted_ui.h"

namespace mardel {

// The built-in libraries and those in a folder, in expert mode where it holds a file "expert".
struct library_folder : registration {
  explicit library_folder(const std::filesystem::path& folder) {
    if (std::filesystem::exists(folder / "expert")) options.expert = expert_mode::kOn;
    options.files_path = "/programs/";
    BuildBuiltinLibraries(set, pool, builder, options.expert);
    LoadLibraryFiles(set, builder, folder.string() + "/", desk);
  }
  load_result Load(const std::string& path) {
    return LoadDesign(document, path, {set, metrics, "\n", desk});
  }
  // Without the check, so that the writer meets what it would refuse.
  source_result Generate(const std::string& path) {
    desk.calls.clear();
    desk.paths = {path};
    const auto nodes = BuildNetlist(document, pool, desk);
    return WriteSource(document, nodes.value(), pool, {options, time, desk});
  }
  std::string Calls() const {
    std::string lines;
    for (const std::string& call : desk.calls) lines += call + '\n';
    return lines;
  }
  settings options;
  fixed_clock time;
  register_pool pool;
  scripted_ui desk;
  design document;
};

}  // namespace mardel
