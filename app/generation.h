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

toolchain_result RunTools(const program& app, const toolchain_request& asked);

// The window's commands; `location` is the program location, or nothing to run from RAM. kept: when
// the source file can't be created, the tools run on whatever stands under its name.
void Generate(program& app, std::optional<int> location);

}  // namespace mardel
