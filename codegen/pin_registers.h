// The register on each pin, as the calls of a source have it.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "codegen/netlist.h"
#include "codegen/numbering.h"
#include "platform/hash.h"

namespace mardel {

struct numbered_pin {
  std::int64_t block_id = 0, pin_num = 0;
  bool operator==(const numbered_pin&) const = default;
};

struct numbered_pin_hash {
  std::uint64_t operator()(const numbered_pin& of) const {
    return HashWord(HashWord(static_cast<std::uint64_t>(of.block_id)) ^
                    static_cast<std::uint64_t>(of.pin_num));
  }
};

// A pin has the register of the first node with a net there, whatever the net's name for the pin.
class pin_registers {
 public:
  // Refers to the nodes, which must stay as they are.
  explicit pin_registers(const std::vector<net_node>& nodes);

  // "" for a pin without a net or a register.
  std::string_view Find(const numbered_pin& of) const {
    const std::uint32_t number = pins_.Find(of);
    return number == kNoNumber ? std::string_view() : names_[number];
  }

 private:
  void Add(const numbered_pin& of, std::string_view name) {
    if (pins_.Number(of) == names_.size()) names_.push_back(name);
  }
  numbering<numbered_pin, numbered_pin_hash> pins_;
  std::vector<std::string_view> names_;
};

}  // namespace mardel
