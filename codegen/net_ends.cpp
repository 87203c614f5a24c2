#include "codegen/net_ends.h"

namespace mardel {

net_ends::net_ends(const cursor_list<net>& nets) : numbers_(2 * nets.size()) {
  pairs_.reserve(nets.size());
  for (const net& wire : nets) {
    const std::uint32_t first = numbers_.Number({wire.id_1, wire.pin_1_name});
    pairs_.push_back({&wire, first, numbers_.Number({wire.id_2, wire.pin_2_name})});
  }
}

}  // namespace mardel
