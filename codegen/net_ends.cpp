#include "codegen/net_ends.h"

namespace mardel {

net_ends::net_ends(const cursor_list<net>& nets, std::span<const net> more)
    : numbers_(2 * (nets.size() + more.size())) {
  pairs_.reserve(nets.size() + more.size());
  const auto add = [this](const net& wire) {
    const std::uint32_t first = numbers_.Number({wire.id_1, wire.pin_1_name});
    pairs_.push_back({&wire, first, numbers_.Number({wire.id_2, wire.pin_2_name})});
  };
  for (const net& wire : nets) add(wire);
  for (const net& wire : more) add(wire);
}

}  // namespace mardel
