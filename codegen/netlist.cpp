#include "codegen/netlist.h"

#include "codegen/design_check.h"
#include "codegen/netlist_steps.h"

namespace mardel {
namespace {

void TakeRegistersBack(register_pool& pool) {
  for (memory_register& r : pool.memory) {
    r.is_free = true;
    r.is_declared = false;
  }
}

std::vector<net_node> JoinedNodes(net_grouping& grouping, const net_ends& ends,
                                  const std::vector<std::string_view>& types) {
  const std::vector<std::uint32_t> left = JoinNodes(grouping, ends);
  std::vector<net_node> nodes;
  nodes.reserve(left.size());
  for (const std::uint32_t number : left) {
    net_node& node = nodes.emplace_back();
    node.id = number;
    const net_chain chain = grouping.nodes[number];
    // kept: the first node of a design has no type, so that only a register block names it.
    if (number != 0) node.type = types[ends.Pairs()[chain.first].first];
    for (std::uint32_t wire = chain.first; wire != kNoNumber; wire = grouping.next[wire]) {
      node.nets.push_back(ends.Pairs()[wire].wire);
    }
  }
  return nodes;
}

}  // namespace

std::variant<std::vector<net_node>, report> BuildNetlist(const design& document,
                                                         register_pool& pool) {
  TakeRegistersBack(pool);
  const net_ends ends(document.nets);
  const std::vector<std::string_view> types = EndTypes(document, ends);
  std::vector<report> mismatches =
      FindTypeMismatches(document, ends, types, problem_search::kFirst);
  if (!mismatches.empty()) return std::move(mismatches.front());
  net_grouping grouping = GroupNets(ends);
  std::vector<net_node> nodes = JoinedNodes(grouping, ends, types);
  NameAfterBlocks(nodes, grouping, ends, TakeNamedRegisters(document, pool));
  TakeFreeRegisters(nodes, pool);
  return nodes;
}

}  // namespace mardel
