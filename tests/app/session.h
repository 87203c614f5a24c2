// The program with a scripted user, recorded tools, and a folder of its own.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "app/event_handling.h"
#include "app/startup.h"
#include "tests/support/files.h"
#include "tests/support/fixed_clock.h"
#include "tests/support/fixed_metrics.h"
#include "tests/support/scripted_ui.h"

namespace mardel {

// Tools that always succeed; each run is one of the calls.
class recording_runner : public process_runner {
 public:
  explicit recording_runner(std::vector<std::string>& calls) : calls_(calls) {}
  tool_result RunTool(const std::string& tool, const std::string& arguments) override {
    calls_.push_back("run " + tool + " " + arguments);
    return {.started = true, .output = "", .exit_code = 0};
  }

 private:
  std::vector<std::string>& calls_;
};

struct session {
  scratch_folder folder;
  scripted_ui desk;
  byte_metrics metrics;
  recording_runner runner{desk.calls};
  fixed_clock time;
  program app{{desk, metrics, runner, time}};

  void Start(const std::string& configuration) {
    WriteAll(folder.Path() + "Mardel.con", configuration);
    ReadSettings(app, {.kind = host_kind::kMac,
                       .folders = {.documents = "/d/", .applications = "/a/", .home = "/h/"},
                       .current_folder = folder.Path()});
    BuildMenus(app, host_kind::kMac);
  }
};

}  // namespace mardel
