// The menu bar as data.
#pragma once

#include <string>
#include <vector>

namespace mardel {

enum class menu_item_kind { kCommand, kCheckable, kSeparator, kSubmenu };

// Where a desktop with an application menu puts the item; elsewhere it stays where the table has
// it.
enum class menu_role { kNone, kAbout, kPreferences, kQuit };

struct menu_item {
  menu_item_kind kind = menu_item_kind::kCommand;
  std::string
      text;    // shown as it stands ("&" is no mnemonic); a tab parts it from the shortcut label
  int id = 0;  // carried by the menu_chosen event
  std::string shortcut;  // "Ctrl+Shift+S" in the toolkit's portable notation, or ""
  menu_role role = menu_role::kNone;
  std::vector<menu_item> items = {};  // of a submenu
  std::string tooltip = {};           // plain text
};

struct menu {
  std::string title;
  std::vector<menu_item> items;
};

}  // namespace mardel
