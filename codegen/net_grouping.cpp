#include <algorithm>

#include "codegen/netlist_steps.h"

namespace mardel {

net_grouping GroupNets(const net_ends& ends) {
  const auto net_count = static_cast<std::uint32_t>(ends.Pairs().size());
  net_grouping grouping{{}, std::vector<std::uint32_t>(net_count, kNoNumber)};
  // The first node that holds each end. A net goes to the lower of its two ends' nodes, which then
  // is the first one for both ends.
  std::vector<std::uint32_t> node_of_end(ends.Count(), kNoNumber);
  for (std::uint32_t wire = 0; wire < net_count; ++wire) {
    const end_pair pair = ends.Pairs()[wire];
    std::uint32_t node = std::min(node_of_end[pair.first], node_of_end[pair.second]);
    if (node == kNoNumber) {
      node = static_cast<std::uint32_t>(grouping.nodes.size());
      grouping.nodes.push_back({wire, wire});
    } else {
      grouping.next[grouping.nodes[node].last] = wire;
      grouping.nodes[node].last = wire;
    }
    node_of_end[pair.first] = node;
    node_of_end[pair.second] = node;
  }
  return grouping;
}

}  // namespace mardel
