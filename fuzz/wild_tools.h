// External tools that end as it pleases them.
#pragma once

#include <string>

#include "fuzz/wild_ui.h"
#include "platform/process.h"

namespace mardel {

class wild_tools : public process_runner {
 public:
  explicit wild_tools(dice& random) : random_(random) {}

  tool_result RunTool(const std::string& /*program*/, const std::string& /*arguments*/) override {
    return {.started = !random_.OneIn(4),
            .output = "",
            .exit_code = static_cast<std::int64_t>(random_.Below(2))};
  }

 private:
  dice& random_;
};

}  // namespace mardel
