#include <algorithm>
#include <unordered_map>

#include "codegen/netlist_steps.h"
#include "platform/text.h"

namespace mardel {
namespace {

struct register_block {
  std::size_t place = 0;  // among the register blocks, in block order
  const std::string* name = nullptr;
};

// The last register block of each id.
using register_blocks = std::unordered_map<std::int64_t, register_block>;

register_blocks TakeNamedRegisters(const design& document, register_pool& pool) {
  register_blocks found;
  std::size_t place = 0;
  for (const dvblock& block : document.blocks) {
    if (!IsRegisterClass(block.lib)) continue;
    found[block.id] = {++place, &block.sub};
    if (block.lib != "MREG") continue;
    if (memory_register* taken = FindMemoryRegister(pool, block.sub)) taken->is_free = false;
  }
  return found;
}

void NameAfterBlocks(net_node& node, const register_blocks& registers) {
  register_block last;
  for (const net* wire : node.nets) {
    for (const std::int64_t id : {wire->id_1, wire->id_2}) {
      const auto found = registers.find(id);
      if (found != registers.end() && found->second.place > last.place) last = found->second;
    }
  }
  if (last.name != nullptr) node.mr = *last.name;
}

}  // namespace

void AssignRegisters(const design& document, std::vector<net_node>& nodes, register_pool& pool) {
  const register_blocks registers = TakeNamedRegisters(document, pool);
  if (!registers.empty()) {
    for (net_node& node : nodes) NameAfterBlocks(node, registers);
  }
  // Of register names only those of up to two characters, such as "R0", leave room for another.
  constexpr std::size_t kLongestUnnamed = 2;
  auto next_free = pool.memory.begin();
  for (net_node& node : nodes) {
    if (node.type != "MREG" || CountCharacters(node.mr) > kLongestUnnamed) continue;
    next_free = std::find_if(next_free, pool.memory.end(),
                             [](const memory_register& r) { return r.is_free; });
    if (next_free == pool.memory.end()) return;
    node.mr = next_free->name;
    next_free->is_free = false;
  }
}

}  // namespace mardel
