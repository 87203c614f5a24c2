// All loaded libraries and block definitions. Filled once at start-up, unchanged afterwards.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "library/records.h"
#include "platform/hash.h"
#include "platform/menu.h"
#include "platform/painter.h"

namespace mardel {

// The Libraries menu while it is being built.
struct menu_builder {
  menu& libraries;  // gets one submenu a library
  int& next_id;     // the next free menu id
  const text_metrics& metrics;
};

class library_set {
 public:
  // In the order of registration. The record added or found by name last is the current one.
  const std::vector<library>& Libraries() const { return libraries_; }
  // Grouped by library in the order of registration, within one in definition order.
  const std::vector<blockdef>& Definitions() const { return definitions_; }

  // First match, exact; null when there is none.
  const library* FindLibrary(std::string_view name) const;
  // All definitions of this pair, exact, in list order, as indexes into Definitions().
  std::span<const std::size_t> FindDefinitions(std::string_view lib, std::string_view sub) const;
  // First match; null for an id that was reserved but given to no block.
  const blockdef* FindDefinition(int menu_id) const;

  void AddLibrary(library added);  // becomes the current record
  library& Current() { return libraries_[current_]; }
  const library& Current() const { return libraries_[current_]; }
  // The library of this name in any letter case becomes the current record; null when there is
  // none.
  const library* SelectIgnoringCase(std::string_view name);

  // Where a library's blocks are built before they are registered.
  std::vector<blockdef> staged;

  // Lays out the staged blocks, gives each a menu id and an item in a new submenu `title`, and
  // moves them to the end of the definitions.
  void RegisterStaged(const std::string& title, menu_builder& builder);

 private:
  template <class value>
  using text_map = std::unordered_map<std::string, value, text_hash, std::equal_to<>>;

  std::vector<library> libraries_;
  std::vector<blockdef> definitions_;
  std::size_t current_ = 0;
  text_map<std::size_t> library_by_name_;        // first of each exact name
  text_map<std::size_t> library_by_upper_name_;  // first of each upper-cased name
  text_map<text_map<std::vector<std::size_t>>> definitions_by_name_;  // lib, then sub
};

// Gives a definition its size and its pins their places.
void LayOut(blockdef& block, const text_metrics& metrics);

}  // namespace mardel
