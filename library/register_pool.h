// The chip's registers as code generation hands them out.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mardel {

struct memory_register {
  std::string name;
  bool is_free = true;
  bool is_declared = false;
};

struct preset_register {
  std::string name;
  bool is_declared = false;
};

struct register_pool {
  std::vector<memory_register> memory;   // "MR0" to "MR127", in this order
  std::vector<preset_register> presets;  // the special function registers that take a preset
};

memory_register* FindMemoryRegister(register_pool& pool, std::string_view name);
preset_register* FindPresetRegister(register_pool& pool, std::string_view name);

}  // namespace mardel
