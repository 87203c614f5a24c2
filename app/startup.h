// What happens before the first event, with a window and without one.
#pragma once

#include <string>
#include <vector>

#include "app/program.h"
#include "platform/host.h"
#include "platform/menu.h"

namespace mardel {

struct host_facts {
  host_kind kind = host_kind::kOther;
  host_folders folders;
  std::string current_folder;
};

host_facts ThisHost();

// Defaults, then the configuration file.
void ReadSettings(program& app, const host_facts& host);

// The menu bar with the libraries, which are built and loaded on the way.
std::vector<menu> BuildMenus(program& app, host_kind host);

}  // namespace mardel
