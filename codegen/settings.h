// What the user configures.
#pragma once

#include <cstdint>
#include <string>

#include "library/builtin_libraries.h"

namespace mardel {

constexpr const char* kVersionText = "2.1";

// Folders end in "/".
struct settings {
  std::string files_path;      // designs and generated sources
  std::string libraries_path;  // library files, also handed to the preprocessor
  std::string exec_path;       // the preprocessor and the assembler
  std::string asm_exe;
  std::string pre_exe;
  std::string dravik_i2c;  // "0x30"; handed to the tools unchanged
  std::int64_t run_opt =
      0;  // 0 preprocess, assemble, run; 1 preprocess; others only write the source
  expert_mode expert = expert_mode::kOff;
};

}  // namespace mardel
