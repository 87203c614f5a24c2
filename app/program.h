// Everything that lives for the whole run.
#pragma once

#include <string>
#include <vector>

#include "app/main_menu.h"
#include "app/unsaved_copy.h"
#include "codegen/settings.h"
#include "editor/rendering.h"
#include "editor/workspace.h"
#include "library/builtin_libraries.h"
#include "library/library_set.h"
#include "library/register_pool.h"
#include "platform/clock.h"
#include "platform/process.h"
#include "platform/ui.h"

namespace mardel {

// The outside world as the program reaches it.
struct edges {
  ui& desk;
  const text_metrics& metrics;
  process_runner& runner;
  date_time (*now)() = Now;
  std::string state_folder = {};  // "" where neither unsaved work nor versions are kept
};

struct program {
  explicit program(const edges& reached) : outside(reached), work(reached.desk, reached.metrics) {}

  edges outside;
  settings options;
  std::string configuration_path;  // written to
  library_set libraries;
  register_pool registers = ChipRegisters();
  menu_ids ids;
  workspace work;
  unsaved_copy copy{outside.state_folder};
  grid grid_lines = grid::kHidden;
  bool quit = false;
};

}  // namespace mardel
