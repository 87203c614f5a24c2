// Turns menu tables into the toolkit's menus.
#pragma once

#include <QAction>
#include <QMainWindow>
#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include "platform/menu.h"

namespace mardel {

class menu_bar {
 public:
  // `chosen` gets the id of each item that the user chooses. `owner` must outlive the menu bar.
  menu_bar(QMainWindow& owner, std::function<void(int id)> chosen);

  // Replaces the menus. Items of submenus are made when their menu is first shown: a library can
  // have thousands, which a start must not wait for.
  void Set(const std::vector<menu>& menus);
  void Check(int id, bool checked);
  void AddShortcut(const std::string& key, int id);

 private:
  void Fill(QMenu& target, const std::vector<menu_item>& items);
  void AddSubmenu(QMenu& target, const menu_item& described);
  void AddCommand(QMenu& target, const menu_item& described);

  QMainWindow& owner_;
  std::function<void(int id)> chosen_;
  std::shared_ptr<const std::vector<menu>> menus_;  // what submenus not yet shown are filled from
  std::unordered_map<int, QAction*> checkable_;
  std::unordered_map<int, bool> checked_;
};

}  // namespace mardel
