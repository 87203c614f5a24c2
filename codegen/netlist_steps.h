// The steps in which BuildNetlist works. Nets, ends and nodes are numbers here: nets by their
// position in the net list, ends as `net_ends` has them, nodes by order of creation.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "codegen/net_ends.h"
#include "codegen/netlist.h"

namespace mardel {

// A node's nets, linked by `net_grouping::next`.
struct net_chain {
  std::uint32_t first = 0, last = 0;
};

struct net_grouping {
  std::vector<net_chain> nodes;
  std::vector<std::uint32_t> next;  // of each net the following one in its node, or kNoNumber
};

// Puts each net, in order, into the first node that holds a net with an end in common, or into a
// new one.
net_grouping GroupNets(const net_ends& ends);

// Joins nodes that later nets have bridged and returns those that are left, in order. In each pass
// every node that is left takes over the first node after it that holds an end of those nets that
// grouping gave it, until a pass takes over none. kept: ends that a node got by a join do not count
// for it, and it takes one node a pass, so that some bridged nodes stay apart.
std::vector<std::uint32_t> JoinNodes(net_grouping& grouping, const net_ends& ends);

struct register_block {
  std::size_t place = 0;  // among the register blocks, in block order, from 1
  const std::string* name = nullptr;
};

// The last register block of each id. Those of the pool are no longer free.
using register_blocks = std::unordered_map<std::int64_t, register_block, id_hash>;
register_blocks TakeNamedRegisters(const design& document, register_pool& pool);

// Register blocks name the nodes that they are wired to, the last one in block order where there
// are several. The nodes' ids are their numbers in the grouping.
void NameAfterBlocks(std::vector<net_node>& nodes, const net_grouping& grouping,
                     const net_ends& ends, const register_blocks& registers);

// The nodes of type "MREG" that are left without a name get the free memory registers.
void TakeFreeRegisters(std::vector<net_node>& nodes, register_pool& pool);

}  // namespace mardel
