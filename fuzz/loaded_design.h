// A fuzzed design with the libraries that its blocks come from.
#pragma once

#include "codegen/design_file.h"
#include "fuzz/target.h"
#include "library/builtin_libraries.h"
#include "library/library_loader.h"
#include "tests/library/description.h"
#include "tests/support/scripted_ui.h"

namespace mardel {

struct known_libraries : registration {
  void BuildRegisters() { BuildBuiltinLibraries(set, pool, builder, expert_mode::kOn); }
  void LoadFolder(const std::string& folder) {
    LoadLibraryFiles(set, builder, MARDEL_SOURCE_DIR + folder, desk);
  }
  void LoadText(std::string_view text) {
    LoadLibraryFile(set, builder, memory_file(text).Path(), desk);
  }
  register_pool pool;
  scripted_ui desk;
};

// Those of the samples and some that name blocks and pins twice.
struct fixed_libraries : known_libraries {
  fixed_libraries() {
    BuildRegisters();
    LoadFolder("/samples/Libraries/");
    LoadFolder("/tests/fixtures/designs/duplicates/");
    LoadFolder("/tests/fixtures/designs/whole/");
  }
};

// A design file, or one with a library file of its own behind a zero byte.
struct loaded_design {
  explicit loaded_design(std::string_view input) {
    const std::size_t end = input.find('\0');
    if (end != std::string_view::npos) {
      own.emplace().BuildRegisters();
      own->LoadText(input.substr(end + 1));
    }
    Load(input.substr(0, end));
  }
  void Load(std::string_view text) {
    const memory_file file(text);
    result = LoadDesign(document, file.Path(), {Libraries().set, Libraries().metrics, "\n", desk});
  }
  bool IsLoaded() const { return result.status == load_status::kLoaded; }
  const known_libraries& Libraries() const {
    static const fixed_libraries fixed;
    return own ? *own : fixed;
  }

  std::optional<known_libraries> own;
  scripted_ui desk;
  design document;
  load_result result;
};

}  // namespace mardel
