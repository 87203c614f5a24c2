#include "codegen/source_calls.h"

#include <algorithm>
#include <tuple>

#include "codegen/design_check.h"
#include "codegen/numbering.h"
#include "platform/hash.h"

namespace mardel {
namespace {

struct numbered_pin {
  std::int64_t block_id = 0, pin_num = 0;
  bool operator==(const numbered_pin&) const = default;
};

struct numbered_pin_hash {
  std::uint64_t operator()(const numbered_pin& of) const {
    return HashWord(id_hash{}(of.block_id) ^ static_cast<std::uint64_t>(of.pin_num));
  }
};

std::size_t NetCount(const std::vector<net_node>& nodes) {
  std::size_t count = 0;
  for (const net_node& node : nodes) count += node.nets.size();
  return count;
}

// The register on each pin: that of the first node with a net there.
class pin_registers {
 public:
  explicit pin_registers(const std::vector<net_node>& nodes) : pins_(2 * NetCount(nodes)) {
    for (const net_node& node : nodes) {
      for (const net* wire : node.nets) {
        Add({wire->id_1, wire->pin_1_num}, node.mr);
        Add({wire->id_2, wire->pin_2_num}, node.mr);
      }
    }
  }
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

// A parameter or a pin of a call.
struct argument {
  std::int64_t number = 0;
  std::size_t place = 0;  // in the block, parameters first
  std::string_view name, type, value;
};

// Parameters come before pins of the same number.
void ListArguments(const dvblock& block, std::vector<argument>& arguments) {
  arguments.clear();
  for (const param& p : block.params) {
    arguments.push_back({p.param_num, arguments.size(), p.param_name, p.param_type, p.param_value});
  }
  for (const pin& p : block.pins) {
    arguments.push_back({p.pin_num, arguments.size(), p.pin_name, p.pin_type, {}});
  }
  // No stable sort, which would allocate for each block.
  std::ranges::sort(arguments, {}, [](const argument& a) { return std::tie(a.number, a.place); });
}

// Appends the call; the first argument without a value is returned and leaves an unfinished line.
const argument* AppendCall(std::string& text, const dvblock& block,
                           const std::vector<argument>& arguments, const pin_registers& registers) {
  text += '@';
  text += block.lib;
  text += '.';
  text += block.sub;
  text += '(';
  for (const argument& a : arguments) {
    if (IsRegisterClass(a.type)) {
      text += registers.Find({block.id, a.number});
    } else if (a.value.empty()) {
      return &a;
    } else {
      text += a.value;
    }
    text += ',';
  }
  // kept: with all commas at the end, those of the last value go too.
  while (text.back() == ',') text.pop_back();
  text += ")\n";
  return nullptr;
}

}  // namespace

std::optional<report> AppendCalls(std::string& text, std::span<const dvblock* const> blocks,
                                  const std::vector<net_node>& nodes) {
  const pin_registers registers(nodes);
  std::vector<argument> arguments;
  for (const dvblock* block : blocks) {
    ListArguments(*block, arguments);
    const std::size_t line_start = text.size();
    if (const argument* unset = AppendCall(text, *block, arguments, registers)) {
      text.resize(line_start);
      return UnsetParameter(*block, unset->name);
    }
  }
  return std::nullopt;
}

}  // namespace mardel
