// The netlist as it is told, step by step and without an index: what the quick one must equal.
#pragma once

#include <algorithm>
#include <list>
#include <optional>
#include <string>
#include <vector>

#include "codegen/netlist.h"

namespace mardel {

struct literal_netlist {
  const net* mismatched = nullptr;  // ends the work; there are no nodes then
  std::vector<net_node> nodes;
};

inline bool ShareAnEnd(const net& a, const net& b) {
  const auto same = [&b](std::int64_t id, const std::string& name) {
    return (id == b.id_1 && name == b.pin_1_name) || (id == b.id_2 && name == b.pin_2_name);
  };
  return same(a.id_1, a.pin_1_name) || same(a.id_2, a.pin_2_name);
}

inline bool ShareAnEnd(const net_node& a, const net_node& b) {
  return std::ranges::any_of(a.nets, [&](const net* of_a) {
    return std::ranges::any_of(b.nets, [&](const net* of_b) { return ShareAnEnd(*of_a, *of_b); });
  });
}

inline bool LiteralPass(const std::vector<net_node>& grouped, std::list<net_node>& working) {
  const std::size_t size_before = working.size();
  for (const net_node& a : grouped) {
    const auto present = std::ranges::find(working, a.id, &net_node::id);
    if (present == working.end()) continue;
    const auto partner = std::find_if(std::next(present), working.end(),
                                      [&](const net_node& b) { return ShareAnEnd(a, b); });
    if (partner == working.end()) continue;
    present->nets.insert(present->nets.end(), partner->nets.begin(), partner->nets.end());
    working.erase(partner);
  }
  return working.size() < size_before;
}

inline void LiteralRegisters(const design& document, std::vector<net_node>& nodes,
                             register_pool& pool) {
  for (const dvblock& block : document.blocks) {
    if (!IsRegisterClass(block.lib)) continue;
    for (net_node& node : nodes) {
      for (const net* wire : node.nets) {
        if (Touches(*wire, block.id)) node.mr = block.sub;
      }
    }
    memory_register* taken = FindMemoryRegister(pool, block.sub);
    if (block.lib == "MREG" && taken != nullptr) taken->is_free = false;
  }
  for (net_node& node : nodes) {
    const auto free = std::ranges::find(pool.memory, true, &memory_register::is_free);
    if (node.mr.size() > 2 || node.type != "MREG" || free == pool.memory.end()) continue;
    node.mr = free->name;
    free->is_free = false;
  }
}

inline literal_netlist LiteralNetlist(const design& document, register_pool& pool) {
  for (memory_register& r : pool.memory) r.is_free = true;
  literal_netlist result;
  std::vector<net_node> grouped;
  for (const net& wire : document.nets) {
    const std::string type = PinType(document, wire.id_1, wire.pin_1_name);
    if (type != PinType(document, wire.id_2, wire.pin_2_name)) return {&wire, {}};
    const net_node alone{std::ssize(grouped), grouped.empty() ? "" : type, "", {&wire}};
    const auto node =
        std::ranges::find_if(grouped, [&](const net_node& n) { return ShareAnEnd(n, alone); });
    if (node == grouped.end()) {
      grouped.push_back(alone);
    } else {
      node->nets.push_back(&wire);
    }
  }
  std::list<net_node> working(grouped.begin(), grouped.end());
  bool is_joined = true;
  while (is_joined) is_joined = LiteralPass(grouped, working);
  result.nodes.assign(working.begin(), working.end());
  LiteralRegisters(document, result.nodes, pool);
  return result;
}

}  // namespace mardel
