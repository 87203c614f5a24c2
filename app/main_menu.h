// The main menu as a table.
#pragma once

#include <vector>

#include "library/library_set.h"
#include "platform/host.h"
#include "platform/menu.h"

namespace mardel {

// Ids of the menu items and of the Escape key. Library blocks have those between `first_library_id`
// and `last_library_id`, both included.
struct menu_ids {
  int new_design = 1, open = 2, save = 3, save_as = 4, generate = 5;
  int first_location = 6;  // "Program Location 0"; the other fifteen follow
  int show_grid = 22, add_text = 23, undo = 24;
  int first_library_id = 25;
  int last_library_id = 26, block_directory = 27, escape = 28;  // follow the libraries' blocks
  int preferences = -2, about = -3, quit = -4;
};

// With libraries that took the ids after `first_library_id` up to `next_id`.
menu_ids MenuIds(int next_id);

constexpr int kProgramLocations = 16;

std::vector<menu> MenuBar(host_kind host, const menu_ids& ids, const library_set& libraries);

}  // namespace mardel
