#include "codegen/pin_registers.h"

namespace mardel {
namespace {

std::size_t NetCount(const std::vector<net_node>& nodes) {
  std::size_t count = 0;
  for (const net_node& node : nodes) count += node.nets.size();
  return count;
}

}  // namespace

pin_registers::pin_registers(const std::vector<net_node>& nodes) : pins_(2 * NetCount(nodes)) {
  for (const net_node& node : nodes) {
    for (const net* wire : node.nets) {
      Add({wire->id_1, wire->pin_1_num}, node.mr);
      Add({wire->id_2, wire->pin_2_num}, node.mr);
    }
  }
}

}  // namespace mardel
