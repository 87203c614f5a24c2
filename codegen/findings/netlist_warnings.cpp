#include <algorithm>
#include <numeric>
#include <set>
#include <span>
#include <unordered_map>

#include "codegen/findings/warnings.h"
#include "codegen/net_ends.h"
#include "codegen/pin_registers.h"

namespace mardel {
namespace {

constexpr const char* kRegister = "Register Warning";
constexpr const char* kPin = "Pin Warning";

rule RuleOf(register_reason why) {
  if (why == register_reason::kFirstNode) return rule::kFirstNodeWithoutRegister;
  if (why == register_reason::kNoneFree) return rule::kNoFreeRegister;
  return rule::kNodeWithoutRegisterBlock;
}

design_place PlaceOf(const explained_node& of) {
  return of.node->nets.empty() ? design_place() : PlaceOf(*of.node->nets.front());
}

std::string Listed(const std::set<std::string_view>& names) {
  std::string list;
  for (const std::string_view name : names) {
    list += list.empty() ? "" : ", ";
    list += name;
  }
  return list;
}

void WarnOfNodesWithoutRegister(const std::vector<explained_node>& nodes,
                                std::vector<report>& found) {
  const auto missing = std::ranges::count(nodes, register_reason::kNoneFree, &explained_node::why);
  for (const explained_node& each : nodes) {
    if (HasRegister(each.why)) continue;
    std::string text = "A node has no register: " + std::string(ReasonWords(each.why));
    if (each.why == register_reason::kNoneFree) {
      text += " and " + std::to_string(missing) + " more are needed";
    }
    text += ". Empty arguments are written for " + PinWords(each.pins);
    found.push_back(Warning(RuleOf(each.why), kRegister, std::move(text), PlaceOf(each)));
  }
}

void WarnOfTwoRegisters(const std::vector<explained_node>& nodes, std::vector<report>& found) {
  for (const explained_node& each : nodes) {
    std::set<std::string_view> names;
    for (const dvblock* block : each.register_blocks) names.insert(block->sub);
    if (names.size() < 2) continue;
    found.push_back(Warning(rule::kTwoRegisters, kRegister,
                            "Different registers are wired together: " + Listed(names) +
                                ". The node is " + each.node->mr + " for " + PinWords(each.pins),
                            PlaceOf(each)));
  }
}

// Ends that wires connect, however the nodes were joined: each end leads to one of its group.
class end_groups {
 public:
  explicit end_groups(const net_ends& ends) : towards_(ends.Count()) {
    std::iota(towards_.begin(), towards_.end(), 0);
    for (const end_pair& both : ends.Pairs()) towards_[Root(both.first)] = Root(both.second);
  }
  std::uint32_t Root(std::uint32_t end) {
    while (towards_[end] != end) end = towards_[end] = towards_[towards_[end]];
    return end;
  }

 private:
  std::vector<std::uint32_t> towards_;
};

void WarnOfSplitNodes(const std::vector<explained_node>& nodes, const net_ends& ends,
                      std::vector<report>& found) {
  end_groups groups(ends);
  std::unordered_map<std::uint32_t, std::vector<const explained_node*>> apart;
  std::vector<std::uint32_t> order;
  for (const explained_node& each : nodes) {
    if (!HasRegister(each.why)) continue;
    const node_pin& first = each.pins.front();
    const std::uint32_t group = groups.Root(ends.Find(first.block_id, first.pin_name));
    if (apart[group].empty()) order.push_back(group);
    apart[group].push_back(&each);
  }
  for (const std::uint32_t group : order) {
    std::set<std::string_view> names;
    for (const explained_node* each : apart[group]) names.insert(each->node->mr);
    if (names.size() < 2) continue;
    const explained_node& last = *apart[group].back();
    found.push_back(Warning(rule::kSplitNode, kRegister,
                            "Connected pins are on different registers: " + Listed(names) +
                                ". On " + last.node->mr + " are " + PinWords(last.pins),
                            PlaceOf(last)));
  }
}

// Ends with the registers of their nodes, several where nodes stayed apart; sorted.
using end_registers = std::vector<std::pair<std::uint32_t, std::string_view>>;

void WarnOfNumbers(const design& document, std::vector<report>& found) {
  std::unordered_map<std::int64_t, const dvblock*, id_hash> blocks;
  for (const dvblock& block : document.blocks) blocks.emplace(block.id, &block);
  const auto check = [&](const net& wire, std::int64_t id, std::string_view name,
                         std::int64_t number) {
    const auto block = blocks.find(id);
    if (block == blocks.end()) return;
    const auto p = std::ranges::find(block->second->pins, name, &pin::pin_name);
    if (p == block->second->pins.end() || p->pin_num == number) return;
    design_place where = PlaceOf(wire);
    where.block_id = id;
    found.push_back(Warning(rule::kPinNumberDiffers, kPin,
                            "A net has number " + std::to_string(number) + " for a pin of number " +
                                std::to_string(p->pin_num) + " on " + BlockName(*block->second) +
                                " pin: " + p->pin_name,
                            where));
  };
  for (const net& wire : document.nets) {
    check(wire, wire.id_1, wire.pin_1_name, wire.pin_1_num);
    check(wire, wire.id_2, wire.pin_2_name, wire.pin_2_num);
  }
}

void WarnOfArguments(const dvblock& block, const end_registers& expected, const net_ends& ends,
                     const pin_registers& written, std::vector<report>& found) {
  for (const pin& p : block.pins) {
    const std::uint32_t end = ends.Find(block.id, p.pin_name);
    const std::span on(
        std::ranges::lower_bound(expected, end, {}, &end_registers::value_type::first),
        std::ranges::upper_bound(expected, end, {}, &end_registers::value_type::first));
    if (on.empty() || !IsRegisterClass(p.pin_type)) continue;
    const std::string_view argument = written.Find({block.id, p.pin_num});
    // What is empty there was told of the node.
    if (std::ranges::count(on, argument, &end_registers::value_type::second) > 0) continue;
    const std::string at = BlockName(block) + " pin: " + p.pin_name;
    if (argument.empty()) {
      found.push_back(Warning(rule::kPinWithoutArgument, kPin,
                              "An empty argument is written for a wired pin on " + at,
                              PlaceOf(block)));
    } else {
      found.push_back(Warning(rule::kPinOnOtherRegister, kPin,
                              "Register " + std::string(argument) +
                                  " is written for a pin wired to " +
                                  std::string(on.front().second) + " on " + at,
                              PlaceOf(block)));
    }
  }
}

}  // namespace

std::vector<report> NetlistWarnings(const design& document, const std::vector<net_node>& nodes) {
  const std::vector<explained_node> explained = ExplainNodes(document, nodes);
  const net_ends ends(document.nets);
  std::vector<report> found;
  WarnOfNodesWithoutRegister(explained, found);
  WarnOfTwoRegisters(explained, found);
  WarnOfSplitNodes(explained, ends, found);
  WarnOfNumbers(document, found);
  end_registers expected;
  for (const explained_node& each : explained) {
    for (const node_pin& p : each.pins) {
      expected.emplace_back(ends.Find(p.block_id, p.pin_name), each.node->mr);
    }
  }
  std::ranges::sort(expected);
  const pin_registers written(nodes);
  for (const dvblock& block : document.blocks) {
    if (!IsRegisterClass(block.lib)) WarnOfArguments(block, expected, ends, written, found);
  }
  return found;
}

}  // namespace mardel
