// A fuzzed design with the libraries that its blocks come from.
#pragma once

#include "codegen/design_file.h"
#include "fuzz/target.h"
#include "library/library_loader.h"
#include "tests/library/description.h"

namespace mardel {

struct known_libraries {
  void BuildRegisters() { BuildBuiltinLibraries(so_far, expert_mode::kOn); }
  void LoadFolder(const std::string& folder) {
    (void)LoadLibraryFiles(so_far, MARDEL_SOURCE_DIR + folder);
  }
  void LoadText(std::string_view text) { (void)LoadLibraryFile(so_far, memory_file(text).Path()); }
  void Finish() { set = library_set(so_far.records); }

  byte_metrics metrics;
  library_loading so_far{.metrics = metrics, .next_id = 26};
  library_set set;
};

// Those of the samples and some that name blocks and pins twice.
struct fixed_libraries : known_libraries {
  fixed_libraries() {
    BuildRegisters();
    LoadFolder("/samples/Libraries/");
    LoadFolder("/tests/fixtures/designs/duplicates/");
    LoadFolder("/tests/fixtures/designs/whole/");
    Finish();
  }
};

// A design file, or one with a library file of its own behind a zero byte.
struct fuzzed_design : loaded_design {
  explicit fuzzed_design(std::string_view input) {
    const std::size_t end = input.find('\0');
    if (end != std::string_view::npos) {
      own.emplace().BuildRegisters();
      own->LoadText(input.substr(end + 1));
      own->Finish();
    }
    Load(input.substr(0, end));
  }
  void Load(std::string_view text) {
    const memory_file file(text);
    static_cast<loaded_design&>(*this) =
        LoadDesign(file.Path(), {Libraries().set, Libraries().metrics, "\n"});
  }
  bool IsLoaded() const { return status == load_status::kLoaded; }
  const known_libraries& Libraries() const {
    static const fixed_libraries fixed;
    return own ? *own : fixed;
  }

  std::optional<known_libraries> own;
};

}  // namespace mardel
