#include "app/main_menu.h"

#include <span>
#include <string>

namespace mardel {
namespace {

struct row {
  const char* text;
  int menu_ids::*id = nullptr;
  const char* keys = "";  // pressed with the host's modifier key
  menu_role role = menu_role::kNone;
  menu_item_kind kind = menu_item_kind::kCommand;
};

constexpr row kFileRows[] = {
    {"New", &menu_ids::new_design, "N"},
    {"Open", &menu_ids::open, "O"},
    {"Save", &menu_ids::save, "S"},
    {"Save as", &menu_ids::save_as, "Shift+S"},
    {"Generate code/run from RAM", &menu_ids::generate, "G"},
    {"Program Location...", &menu_ids::first_location, "", menu_role::kNone,
     menu_item_kind::kSubmenu},
    {"", nullptr, "", menu_role::kNone, menu_item_kind::kSeparator},
    {"Edit configuration", &menu_ids::preferences, "", menu_role::kPreferences},
    {"Quit", &menu_ids::quit, "", menu_role::kQuit},
};

constexpr row kEditRows[] = {
    {"Show/hide grid", &menu_ids::show_grid, "", menu_role::kNone, menu_item_kind::kCheckable},
    {"Add text block...", &menu_ids::add_text},
    {"Undo", &menu_ids::undo, "Z"},
};

constexpr row kHelpRows[] = {
    {"Block directory", &menu_ids::block_directory},
    {"About", &menu_ids::about, "", menu_role::kAbout},
};

menu_item Command(const row& shown, const char* modifier) {
  menu_item made;
  made.kind = shown.kind;
  made.text = shown.text;
  made.role = shown.role;
  if (*shown.keys != '\0') {
    made.text += std::string("\t") + modifier + "+" + shown.keys;
    made.shortcut = std::string("Ctrl+") + shown.keys;
  }
  return made;
}

std::vector<menu_item> ProgramLocations(int& next_id) {
  std::vector<menu_item> locations;
  for (int location = 0; location < kProgramLocations; ++location) {
    menu_item& made = locations.emplace_back();
    made.text = "Program Location " + std::to_string(location);
    made.id = next_id++;
  }
  return locations;
}

std::vector<menu_item> Items(std::span<const row> rows, host_kind host, menu_ids& ids,
                             int& next_id) {
  std::vector<menu_item> items;
  for (const row& shown : rows) {
    menu_item& made = items.emplace_back(Command(shown, host == host_kind::kMac ? "cmd" : "Ctrl"));
    if (shown.kind == menu_item_kind::kSubmenu) {
      ids.*shown.id = next_id;
      made.items = ProgramLocations(next_id);
    } else if (shown.id != nullptr) {
      int& id = ids.*shown.id;
      if (id == 0) id = next_id++;
      made.id = id;
    }
  }
  return items;
}

}  // namespace

menu FileMenu(host_kind host, menu_ids& ids, int& next_id) {
  return {"File", Items(kFileRows, host, ids, next_id)};
}

menu EditMenu(host_kind host, menu_ids& ids, int& next_id) {
  return {"Edit", Items(kEditRows, host, ids, next_id)};
}

menu HelpMenu(host_kind host, menu_ids& ids, int& next_id) {
  return {"Help", Items(kHelpRows, host, ids, next_id)};
}

}  // namespace mardel
