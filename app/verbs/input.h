// Designs as the command line names them.
#pragma once

#include <string>
#include <variant>

#include "app/headless.h"
#include "codegen/design_reader.h"
#include "library/report.h"

namespace mardel {

// "-" is standard input. A report says why a file can't be read.
[[nodiscard]] std::variant<std::string, report> ReadInput(const std::string& path);

// The design as its file has it; a report says why there is none.
[[nodiscard]] std::variant<raw_design, report> ReadRawInput(const std::string& path);

// "-" is standard output. Says why on standard error when it can't be written.
exit_status WriteOutput(const std::string& path, std::string_view content);

}  // namespace mardel
