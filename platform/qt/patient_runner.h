// Runs tools while the windows stay alive.
#pragma once

#include "platform/process.h"

namespace mardel {

// While a tool runs the pointer is busy, windows are painted and answer the desktop, and what is
// typed or clicked is dropped. Needs a running QApplication.
class patient_runner : public process_runner {
 public:
  patient_runner();
  tool_result RunTool(const std::string& program, const std::string& arguments) override;

 private:
  host_process_runner runner_;
};

}  // namespace mardel
