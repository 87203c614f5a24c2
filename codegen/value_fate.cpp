#include "codegen/value_fate.h"

#include <algorithm>

#include "platform/xml.h"

namespace mardel {
namespace {

bool Breaks(std::string_view value) {
  return FateOfValue(value) == value_fate::kBreaksFile;
}

// Null when the block has none.
const std::string* BreakingValue(const dvblock& block) {
  if (Breaks(block.lib)) return &block.lib;
  if (Breaks(block.sub)) return &block.sub;
  for (const pin& p : block.pins) {
    if (Breaks(p.pin_name)) return &p.pin_name.Text();
  }
  for (const param& p : block.params) {
    if (Breaks(p.param_name)) return &p.param_name.Text();
    if (Breaks(p.param_value)) return &p.param_value;
  }
  return nullptr;
}

bool IsPlain(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  return code >= ' ' && code < 0x7FU && byte != '<' && byte != '&' && byte != '>';
}

}  // namespace

value_fate FateOfValue(std::string_view value) {
  if (std::ranges::all_of(value, IsPlain)) return value_fate::kKept;
  const xml_result read = ParseXml("<value>" + std::string(value) + "</value>");
  if (read.status != xml_status::kRead) return value_fate::kBreaksFile;
  const xml_tree::node root = read.tree.Root();
  const bool is_same = !root.HasChildren() && root.Text() == value;
  return is_same ? value_fate::kKept : value_fate::kChanged;
}

std::string ValueThatBreaksFile(const design& document) {
  for (const dvblock& block : document.blocks) {
    const std::string* value = BreakingValue(block);
    if (value == nullptr) continue;
    return '"' + *value + "\" of block " + std::to_string(block.id) + ", " + block.sub;
  }
  for (const net& wire : document.nets) {
    for (const std::string* value : {&wire.pin_1_name, &wire.pin_2_name}) {
      if (Breaks(*value)) return '"' + *value + "\" of net " + std::to_string(wire.net_id);
    }
  }
  return {};
}

}  // namespace mardel
