// Why each node has the register that it has.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "codegen/netlist.h"

namespace mardel {

enum class register_reason {
  kBlock,            // a register block is wired to the node
  kMemory,           // it took a free memory register
  kFirstNode,        // none: a design's first node takes no free one
  kNoRegisterBlock,  // none: only register blocks name nodes of its type
  kNoneFree,         // none: all memory registers are taken
};

struct node_pin {
  std::int64_t block_id = 0;
  std::string_view pin_name;
  const dvblock* block = nullptr;  // null when no block has the id
};

struct explained_node {
  const net_node* node = nullptr;
  register_reason why = register_reason::kNoRegisterBlock;
  std::vector<node_pin> pins;                   // distinct, in the order of the nets
  std::vector<const dvblock*> register_blocks;  // among the pins' blocks, in the same order
};

// One for each node that BuildNetlist made of the design, which both must outlive.
std::vector<explained_node> ExplainNodes(const design& document,
                                         const std::vector<net_node>& nodes);

bool HasRegister(register_reason why);

// "the first node takes no free register"
std::string_view ReasonWords(register_reason why);

// "block 3, Gain pin: out"
std::string PinWords(const node_pin& of);
// The first few, with commas between them, and how many more there are.
std::string PinWords(const std::vector<node_pin>& pins);

}  // namespace mardel
