#include "app/main_menu.h"

#include <gtest/gtest.h>

#include <map>

#include "tests/support/files.h"

namespace mardel {
namespace {

std::string Describe(const menu_item& shown, const std::string& indent) {
  static const std::map<menu_role, std::string> roles{{menu_role::kNone, ""},
                                                      {menu_role::kAbout, " about"},
                                                      {menu_role::kPreferences, " preferences"},
                                                      {menu_role::kQuit, " quit"}};
  if (shown.kind == menu_item_kind::kSeparator) return indent + "----\n";
  std::string text = shown.text;
  if (const auto tab = text.find('\t'); tab != std::string::npos) text.replace(tab, 1, "\\t");
  if (shown.kind == menu_item_kind::kSubmenu) {
    text = indent + text + " submenu\n";
    for (const menu_item& inner : shown.items) text += Describe(inner, indent + "  ");
    return text;
  }
  return indent + std::to_string(shown.id) + " " + text +
         (shown.shortcut.empty() ? "" : " [" + shown.shortcut + "]") + roles.at(shown.role) +
         (shown.kind == menu_item_kind::kCheckable ? " checkable\n" : "\n");
}

std::string Describe(const menu& shown) {
  std::string text = shown.title + "\n";
  for (const menu_item& each : shown.items) text += Describe(each, "  ");
  return text;
}

TEST(MainMenu, IsThisTable) {
  for (const auto& fixture : Fixtures("menus")) {
    SCOPED_TRACE(fixture);
    const host_kind host = fixture.stem() == "mac" ? host_kind::kMac : host_kind::kLinux;
    menu_ids ids;
    int next_id = 1;
    std::string text = Describe(FileMenu(host, ids, next_id));
    text += Describe(EditMenu(host, ids, next_id));
    text += Describe(HelpMenu(host, ids, next_id));
    EXPECT_EQ(text, ReadAll(fixture));
    EXPECT_EQ(ids.first_location, 6);
  }
}

}  // namespace
}  // namespace mardel
