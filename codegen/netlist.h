// From wires to registers: groups nets into electrical nodes and gives each node the chip register
// that carries its signal.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "editor/design.h"
#include "library/register_pool.h"
#include "library/report.h"

namespace mardel {

struct net_node {
  std::int64_t id = 0;
  std::string type;  // pin type of the net that created it; kept: "" for a design's first node
  std::string mr;    // the register's name; "" when it has none
  std::vector<const net*> nets;  // of the design, which must outlive the node unchanged
};

// The nodes; or, when a net joins pins of different types, what is to be said of the first such
// net. Takes all memory registers back first.
[[nodiscard]] std::variant<std::vector<net_node>, report> BuildNetlist(const design& document,
                                                                       register_pool& pool);

}  // namespace mardel
