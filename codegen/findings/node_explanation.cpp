#include "codegen/findings/node_explanation.h"

#include <algorithm>
#include <set>
#include <string>
#include <unordered_map>

#include "codegen/net_ends.h"

namespace mardel {
namespace {

register_reason ReasonOf(const explained_node& of) {
  const net_node& node = *of.node;
  if (!node.mr.empty()) {
    const bool is_named = std::ranges::any_of(
        of.register_blocks, [&](const dvblock* block) { return block->sub == node.mr; });
    return is_named ? register_reason::kBlock : register_reason::kMemory;
  }
  if (node.id == 0) return register_reason::kFirstNode;
  return node.type == "MREG" ? register_reason::kNoneFree : register_reason::kNoRegisterBlock;
}

}  // namespace

std::vector<explained_node> ExplainNodes(const design& document,
                                         const std::vector<net_node>& nodes) {
  std::unordered_map<std::int64_t, const dvblock*, id_hash> blocks;
  // Of register blocks the last one of an id names the node.
  for (const dvblock& block : document.blocks) {
    const dvblock*& known = blocks[block.id];
    if (known == nullptr || IsRegisterClass(block.lib)) known = &block;
  }
  std::vector<explained_node> all;
  for (const net_node& node : nodes) {
    explained_node& explained = all.emplace_back();
    explained.node = &node;
    std::set<std::pair<std::int64_t, std::string_view>> seen;
    const auto add = [&](std::int64_t id, std::string_view pin_name) {
      if (!seen.emplace(id, pin_name).second) return;
      const auto found = blocks.find(id);
      const dvblock* const block = found == blocks.end() ? nullptr : found->second;
      explained.pins.push_back({id, pin_name, block});
      if (block == nullptr || !IsRegisterClass(block->lib)) return;
      if (std::ranges::count(explained.register_blocks, block) > 0) return;
      explained.register_blocks.push_back(block);
    };
    for (const net* wire : node.nets) {
      add(wire->id_1, wire->pin_1_name);
      add(wire->id_2, wire->pin_2_name);
    }
    explained.why = ReasonOf(explained);
  }
  return all;
}

bool HasRegister(register_reason why) {
  return why == register_reason::kBlock || why == register_reason::kMemory;
}

std::string_view ReasonWords(register_reason why) {
  switch (why) {
    case register_reason::kBlock:
      return "a register block is wired to it";
    case register_reason::kMemory:
      return "a free memory register";
    case register_reason::kFirstNode:
      return "the first node of a design takes no free register";
    case register_reason::kNoRegisterBlock:
      return "no register block is wired to it";
    case register_reason::kNoneFree:
      break;
  }
  return "all memory registers are taken";
}

std::string PinWords(const node_pin& of) {
  return "block " + std::to_string(of.block_id) + ", " +
         (of.block == nullptr ? std::string() : of.block->sub) +
         " pin: " + std::string(of.pin_name);
}

std::string PinWords(const std::vector<node_pin>& pins) {
  constexpr std::size_t kMost = 8;
  std::string words;
  for (const node_pin& each : pins) {
    if (&each == pins.data() + kMost) {
      return words + " and " + std::to_string(pins.size() - kMost) + " more";
    }
    words += (words.empty() ? "" : "; ") + PinWords(each);
  }
  return words;
}

}  // namespace mardel
