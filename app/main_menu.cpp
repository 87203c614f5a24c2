#include "app/main_menu.h"

#include <span>
#include <string>

namespace mardel {
namespace {

struct row {
  const char* text;
  int menu_ids::* id = nullptr;
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

std::vector<menu_item> ProgramLocations(int first_id) {
  std::vector<menu_item> locations;
  for (int location = 0; location < kProgramLocations; ++location) {
    menu_item& made = locations.emplace_back();
    made.text = "Program Location " + std::to_string(location);
    made.id = first_id + location;
  }
  return locations;
}

std::vector<menu_item> Items(std::span<const row> rows, host_kind host, const menu_ids& ids) {
  std::vector<menu_item> items;
  for (const row& shown : rows) {
    menu_item& made = items.emplace_back(Command(shown, host == host_kind::kMac ? "cmd" : "Ctrl"));
    if (shown.kind == menu_item_kind::kSubmenu) {
      made.items = ProgramLocations(ids.*shown.id);
    } else if (shown.id != nullptr) {
      made.id = ids.*shown.id;
    }
  }
  return items;
}

std::vector<menu_item> LibraryItems(const library_set& libraries) {
  std::vector<menu_item> items;
  auto definition = libraries.Definitions().begin();
  for (const definition_group& group : libraries.Groups()) {
    menu_item& submenu = items.emplace_back();
    submenu.kind = menu_item_kind::kSubmenu;
    submenu.text = group.title;
    for (std::size_t i = 0; i < group.count; ++i, ++definition) {
      menu_item& block = submenu.items.emplace_back();
      block.text = definition->sub;
      block.id = definition->id;
      block.tooltip = definition->desc;
    }
  }
  return items;
}

}  // namespace

menu_ids MenuIds(int next_id) {
  menu_ids ids;
  for (int* id : {&ids.last_library_id, &ids.block_directory, &ids.escape}) *id = next_id++;
  return ids;
}

std::vector<menu> MenuBar(host_kind host, const menu_ids& ids, const library_set& libraries) {
  return {{"File", Items(kFileRows, host, ids)},
          {"Edit", Items(kEditRows, host, ids)},
          {"Libraries", LibraryItems(libraries)},
          {"Help", Items(kHelpRows, host, ids)}};
}

}  // namespace mardel
