#include "codegen/netlist.h"

#include "codegen/netlist_steps.h"

namespace mardel {
namespace {

// As the wires of the canvas.
constexpr double kNetWidth = 2.0;

void TakeRegistersBack(register_pool& pool) {
  for (memory_register& r : pool.memory) {
    r.is_free = true;
    r.is_declared = false;
  }
}

void Report(const design_problem& problem, ui& desk) {
  const net& wire = *problem.wire;
  desk.ShowOverlay(
      {overlay::shape::kLine, {{wire.x_1, wire.y_1}, {wire.x_2, wire.y_2}}, {kRed, kNetWidth}});
  desk.ShowMessage(problem.report);
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

std::optional<std::vector<net_node>> BuildNetlist(const design& document, register_pool& pool,
                                                  ui& desk) {
  TakeRegistersBack(pool);
  const net_ends ends(document.nets);
  const std::vector<std::string_view> types = EndTypes(document, ends);
  const std::vector<design_problem> mismatches =
      FindTypeMismatches(document, ends, types, problem_search::kFirst);
  if (!mismatches.empty()) {
    Report(mismatches.front(), desk);
    return std::nullopt;
  }
  net_grouping grouping = GroupNets(ends);
  std::vector<net_node> nodes = JoinedNodes(grouping, ends, types);
  NameAfterBlocks(nodes, grouping, ends, TakeNamedRegisters(document, pool));
  TakeFreeRegisters(nodes, pool);
  return nodes;
}

}  // namespace mardel
