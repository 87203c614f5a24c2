// The main menu as a table.
#pragma once

#include "platform/host.h"
#include "platform/menu.h"

namespace mardel {

// Ids of the menu items and of the Escape key. Library blocks have those between `first_library_id`
// and `last_library_id`, both included.
struct menu_ids {
  int new_design = 0, open = 0, save = 0, save_as = 0, generate = 0;
  int first_location = 0;  // "Program Location 0"; the other fifteen follow
  int show_grid = 0, add_text = 0, undo = 0;
  int first_library_id = 0, last_library_id = 0;
  int block_directory = 0, escape = 0;
  int preferences = -2, about = -3, quit = -4;
};

constexpr int kProgramLocations = 16;

// The menus on both sides of "Libraries". Each takes its items' ids from `next_id` on.
menu FileMenu(host_kind host, menu_ids& ids, int& next_id);
menu EditMenu(host_kind host, menu_ids& ids, int& next_id);
menu HelpMenu(host_kind host, menu_ids& ids, int& next_id);

}  // namespace mardel
