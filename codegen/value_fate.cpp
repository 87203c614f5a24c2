#include "codegen/value_fate.h"

#include <algorithm>

#include "platform/xml.h"

namespace mardel {
namespace {

bool IsPlain(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  return code >= ' ' && code < 0x7FU && byte != '<' && byte != '&' && byte != '>';
}

value_fate FateOfValue(std::string_view value) {
  if (std::ranges::all_of(value, IsPlain)) return value_fate::kKept;
  const xml_result read = ParseXml("<value>" + std::string(value) + "</value>");
  if (read.status != xml_status::kRead) return value_fate::kBreaksFile;
  const xml_tree::node root = read.tree.Root();
  const bool is_same = !root.HasChildren() && root.Text() == value;
  return is_same ? value_fate::kKept : value_fate::kChanged;
}

}  // namespace

std::vector<lost_value> LostValues(const design& document) {
  std::vector<lost_value> lost;
  const auto check = [&lost](const std::string& value, const dvblock* block, const net* wire) {
    const value_fate fate = FateOfValue(value);
    if (fate != value_fate::kKept) lost.push_back({value, fate, block, wire});
  };
  for (const dvblock& block : document.blocks) {
    check(block.lib, &block, nullptr);
    check(block.sub, &block, nullptr);
    for (const pin& p : block.pins) check(p.pin_name, &block, nullptr);
    for (const param& p : block.params) {
      check(p.param_name, &block, nullptr);
      check(p.param_value, &block, nullptr);
    }
  }
  for (const net& wire : document.nets) {
    check(wire.pin_1_name, nullptr, &wire);
    check(wire.pin_2_name, nullptr, &wire);
  }
  return lost;
}

std::string OwnerName(const lost_value& of) {
  if (of.block == nullptr) return "net " + std::to_string(of.wire->net_id);
  return "block " + std::to_string(of.block->id) + ", " + of.block->sub;
}

std::string ValueThatBreaksFile(const design& document) {
  for (const lost_value& each : LostValues(document)) {
    if (each.fate == value_fate::kBreaksFile) return '"' + each.value + "\" of " + OwnerName(each);
  }
  return {};
}

}  // namespace mardel
