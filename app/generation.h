// From the design to a source file, and on through the chip maker's tools.
#pragma once

#include <optional>
#include <string>

#include "app/program.h"
#include "codegen/source_writer.h"
#include "codegen/toolchain.h"

namespace mardel {

// Nothing when the design was refused.
std::optional<source_result> GenerateSource(program& app);

// `location` is the program location, or nothing to run from RAM.
toolchain_result RunTools(const program& app, const std::string& source_path,
                          std::optional<int> location);

// The window's commands. kept: when the source file can't be created, the tools run on whatever
// stands under its name.
void Generate(program& app, std::optional<int> location);

}  // namespace mardel
