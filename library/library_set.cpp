#include "library/library_set.h"

#include <algorithm>
#include <utility>

namespace mardel {

library_set::library_set(library_records records) : records_(std::move(records)) {
  for (std::size_t i = 0; i < Libraries().size(); ++i) {
    library_by_name_.try_emplace(Libraries()[i].name, i);
  }
  for (std::size_t i = 0; i < Definitions().size(); ++i) {
    definitions_by_name_[Definitions()[i].lib][Definitions()[i].sub].push_back(i);
  }
}

const library* library_set::FindLibrary(std::string_view name) const {
  const auto found = library_by_name_.find(name);
  return found == library_by_name_.end() ? nullptr : &Libraries()[found->second];
}

std::span<const std::size_t> library_set::FindDefinitions(std::string_view lib,
                                                          std::string_view sub) const {
  const auto in_library = definitions_by_name_.find(lib);
  if (in_library == definitions_by_name_.end()) return {};
  const auto found = in_library->second.find(sub);
  if (found == in_library->second.end()) return {};
  return found->second;
}

const blockdef* library_set::FindDefinition(int menu_id) const {
  const auto found = std::ranges::lower_bound(Definitions(), menu_id, {}, &blockdef::id);
  return found != Definitions().end() && found->id == menu_id ? &*found : nullptr;
}

}  // namespace mardel
