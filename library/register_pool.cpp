#include "library/register_pool.h"

#include <algorithm>

namespace mardel {

namespace {

template <class record>
record* FindByName(std::vector<record>& records, std::string_view name) {
  const auto found = std::ranges::find(records, name, &record::name);
  return found == records.end() ? nullptr : &*found;
}

}  // namespace

memory_register* FindMemoryRegister(register_pool& pool, std::string_view name) {
  return FindByName(pool.memory, name);
}

preset_register* FindPresetRegister(register_pool& pool, std::string_view name) {
  return FindByName(pool.presets, name);
}

}  // namespace mardel
