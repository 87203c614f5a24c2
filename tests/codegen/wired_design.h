// Designs, netlists and registers in a line of text, for tables of cases.
#pragma once

#include <sstream>
#include <string>

#include "codegen/netlist.h"

namespace mardel {

// Adds blocks such as "1 dsp Mix gain=0.5 IN:MREG OUT:MREG | 2 MREG MR7 OUT:MREG".
inline void AddBlocks(design& document, const std::string& blocks) {
  std::istringstream lines(blocks);
  for (std::string line; std::getline(lines, line, '|');) {
    std::istringstream words(line);
    dvblock block;
    words >> block.id >> block.lib >> block.sub;
    for (std::string word; words >> word;) {
      const std::size_t mark = word.find_first_of(":=");
      const std::string name = word.substr(0, mark), rest = word.substr(mark + 1);
      if (word[mark] == '=') {
        block.params.push_back({1, name, "Number", rest, ""});
      } else {
        block.pins.push_back({1, name, rest, "L", ""});
      }
    }
    document.blocks.Append(block);
  }
}

// Adds nets such as "1.OUT-2.IN 2.OUT-3.IN", numbered from 0, net n from (n, 10) to (n, 20).
inline void AddNets(design& document, const std::string& nets) {
  std::istringstream words(nets);
  char dot = 0;
  for (net wire; words >> wire.id_1 >> dot && std::getline(words, wire.pin_1_name, '-') &&
                 words >> wire.id_2 >> dot >> wire.pin_2_name;) {
    wire.net_id = wire.x_1 = wire.x_2 = std::ssize(document.nets);
    wire.y_1 = 10;
    wire.y_2 = 20;
    document.nets.Append(wire);
  }
}

inline register_pool PoolOf(int count) {
  register_pool pool;
  for (int n = 0; n < count; ++n) pool.memory.push_back({"MR" + std::to_string(n), false, true});
  return pool;
}

// As "0 MREG MR5: 0 2 | 1 MREG MR0: 1", the node's type and register in quotes when empty.
inline std::string Describe(const std::vector<net_node>& nodes) {
  const auto shown = [](const std::string& text) { return text.empty() ? "''" : text; };
  std::string all;
  for (const net_node& node : nodes) {
    if (!all.empty()) all += " | ";
    all += std::to_string(node.id) + ' ' + shown(node.type) + ' ' + shown(node.mr) + ':';
    for (const net* wire : node.nets) all += ' ' + std::to_string(wire->net_id);
  }
  return all;
}

}  // namespace mardel
