// All libraries and block definitions. Made once, when they are loaded, and unchanged afterwards.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "library/records.h"
#include "platform/hash.h"

namespace mardel {

// Definitions that stand in one submenu of the Libraries menu.
struct definition_group {
  std::string title;
  std::size_t count = 0;
};

struct library_records {
  std::vector<library> libraries;  // in the order of registration
  // Grouped by library in the order of registration, within one in definition order. Ids grow.
  std::vector<blockdef> definitions;
  std::vector<definition_group> groups;  // of all definitions, in their order
};

class library_set {
 public:
  library_set() = default;
  explicit library_set(library_records records);

  const std::vector<library>& Libraries() const { return records_.libraries; }
  const std::vector<blockdef>& Definitions() const { return records_.definitions; }
  const std::vector<definition_group>& Groups() const { return records_.groups; }

  // First match, exact; null when there is none.
  const library* FindLibrary(std::string_view name) const;
  // All definitions of this pair, exact, in list order, as indexes into Definitions().
  std::span<const std::size_t> FindDefinitions(std::string_view lib, std::string_view sub) const;
  // First match; null for an id that was reserved but given to no block.
  const blockdef* FindDefinition(int menu_id) const;

 private:
  template <class value>
  using text_map = std::unordered_map<std::string, value, text_hash, std::equal_to<>>;

  library_records records_;
  text_map<std::size_t> library_by_name_;                             // first of each name
  text_map<text_map<std::vector<std::size_t>>> definitions_by_name_;  // lib, then sub
};

}  // namespace mardel
