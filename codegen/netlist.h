// From wires to registers: groups nets into electrical nodes and gives each node the chip register
// that carries its signal.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "editor/design.h"
#include "library/register_pool.h"
#include "platform/ui.h"

namespace mardel {

struct net_node {
  std::int64_t id = 0;
  std::string type;  // pin type of the net that created it; kept: "" for a design's first node
  std::string mr;    // the register's name; "" when it has none
  std::vector<const net*> nets;  // of the design, which must outlive the node unchanged
};

// Something that keeps a design from becoming a program.
struct design_problem {
  message report;
  const net* wire = nullptr;  // the net to show in red
};

enum class problem_search { kFirst, kAll };

// Nets that join pins of different types, in net order.
std::vector<design_problem> FindTypeMismatches(const design& document, problem_search search);
// Parameters without a value and pins without a net, in block order.
std::vector<design_problem> FindUnsetAndUnconnected(const design& document, problem_search search);

// The nodes, or nothing when a net joins pins of different types; that net is reported and shown in
// red. Takes all memory registers back first.
std::optional<std::vector<net_node>> BuildNetlist(const design& document, register_pool& pool,
                                                  ui& desk);

// Whether every parameter is set and every pin wired; the first that is not is reported.
bool CheckDesign(const design& document, ui& desk);

}  // namespace mardel
