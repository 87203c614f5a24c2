// What the user configures.
#pragma once

#include <cstdint>
#include <string>

#include "library/builtin_libraries.h"

namespace mardel {

// How far the tools go after a source was written. The numbers are those of the configuration file;
// any other number is kept as it is and means kSourceOnly.
enum class run_option : std::int64_t {
  kRun = 0,  // preprocess, then assemble and run from RAM or store in a program location
  kPreprocess = 1,
  kSourceOnly = 2,
};

// Folders end in "/".
struct settings {
  std::string files_path;      // designs and generated sources
  std::string libraries_path;  // library files, also handed to the preprocessor
  std::string exec_path;       // the preprocessor and the assembler
  std::string asm_exe;
  std::string pre_exe;
  std::string dravik_i2c;  // "0x30"; handed to the tools unchanged
  run_option run_opt = run_option::kRun;
  expert_mode expert = expert_mode::kOff;
};

}  // namespace mardel
