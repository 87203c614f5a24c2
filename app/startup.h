// What happens before the first event.
#pragma once

#include <string>
#include <vector>

#include "app/program.h"
#include "library/report.h"
#include "platform/host.h"

namespace mardel {

struct host_facts {
  host_kind kind = host_kind::kOther;
  host_folders folders;
  std::string current_folder;
};

host_facts ThisHost();

struct [[nodiscard]] configuration {
  settings options;
  std::string path = {};             // written to
  std::vector<report> reports = {};  // none, or what is wrong with the file
};

// Defaults, then the configuration file.
configuration ReadConfiguration(const host_facts& host);

// Gives the program its settings; a problem is shown.
void ReadSettings(program& app, const host_facts& host);

// Gives the program its libraries, and the menu items behind them their ids.
[[nodiscard]] std::vector<report> FillLibraries(program& app);

}  // namespace mardel
