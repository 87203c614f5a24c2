#include <algorithm>

#include "codegen/netlist_steps.h"
#include "platform/text.h"

namespace mardel {

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

void NameAfterBlocks(std::vector<net_node>& nodes, const net_grouping& grouping,
                     const net_ends& ends, const register_blocks& registers) {
  if (registers.empty()) return;
  std::vector<register_block> under(ends.Count());  // by end
  for (std::uint32_t end = 0; end < ends.Count(); ++end) {
    const auto found = registers.find(ends.BlockOf(end));
    if (found != registers.end()) under[end] = found->second;
  }
  for (net_node& node : nodes) {
    register_block last;
    std::uint32_t wire = grouping.nodes[static_cast<std::size_t>(node.id)].first;
    for (; wire != kNoNumber; wire = grouping.next[wire]) {
      const end_pair& both = ends.Pairs()[wire];
      for (const std::uint32_t end : {both.first, both.second}) {
        if (under[end].place > last.place) last = under[end];
      }
    }
    if (last.name != nullptr) node.mr = *last.name;
  }
}

void TakeFreeRegisters(std::vector<net_node>& nodes, register_pool& pool) {
  // Of register names only those of up to two characters, such as "R0", leave room for another.
  constexpr std::size_t kLongestUnnamed = 2;
  auto next_free = pool.memory.begin();
  for (net_node& node : nodes) {
    if (node.type != "MREG" || CountCharacters(node.mr) > kLongestUnnamed) continue;
    next_free = std::ranges::find(next_free, pool.memory.end(), true, &memory_register::is_free);
    if (next_free == pool.memory.end()) return;
    node.mr = next_free->name;
    next_free->is_free = false;
  }
}

}  // namespace mardel
