// Runs the chip maker's preprocessor and assembler on a generated source.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "codegen/settings.h"
#include "platform/process.h"
#include "platform/ui.h"

namespace mardel {

enum class [[nodiscard]] toolchain_result { kDone, kToolFailed, kToolNotStarted };

struct toolchain_request {
  std::string source_path;  // of fewer than 6 characters runs nothing
  run_option steps = run_option::kRun;
  std::optional<int> location;  // 0 to 15, or nothing to run from RAM
};

struct toolchain_context {
  const settings& options;  // of which the run option is not asked
  process_runner& runner;
  message_boxes& boxes;
};

// Whether no tool runs on the path.
bool IsTooShortForTools(std::string_view source_path);

[[nodiscard]] toolchain_result RunToolchain(const toolchain_request& asked,
                                            const toolchain_context& context);

}  // namespace mardel
