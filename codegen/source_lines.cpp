#include "codegen/source_lines.h"

#include <algorithm>
#include <tuple>

#include "codegen/design_check.h"

namespace mardel {
namespace {

void EndLine(source_lines& to, const dvblock& block, std::size_t start) {
  to.lines.push_back({&block, start, to.text.size() - start});
  to.text += '\n';
}

// A library whose blocks are declared, and the word that declares them.
struct declaration {
  const char* library;
  const char* directive;
};
constexpr declaration kMemoryDeclaration{"MREG", ".MREG"};
constexpr declaration kCoreDeclaration{"CREG", ".CREG"};
constexpr declaration kPresetDeclaration{"SFR", ".SREG"};

// One line for each "Preset" of the library's blocks that `take` allows.
template <class predicate>
void Declare(source_lines& to, const placed_blocks& blocks, const declaration& how,
             predicate take) {
  for (const dvblock* block : blocks) {
    if (block->lib != how.library) continue;
    for (const param& p : block->params) {
      if (p.param_name != "Preset" || !take(block->sub)) continue;
      const std::size_t start = to.text.size();
      to.text.append(how.directive).append(" ").append(block->sub);
      to.text.append(" ").append(p.param_value);
      EndLine(to, *block, start);
    }
  }
}

// Whether the register exists and was not declared before; it is then.
template <class chip_register>
bool TakeDeclaration(chip_register* found) {
  if (found == nullptr || found->is_declared) return false;
  found->is_declared = true;
  return true;
}

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
  std::sort(arguments.begin(), arguments.end(), [](const argument& a, const argument& b) {
    return std::tie(a.number, a.place) < std::tie(b.number, b.place);
  });
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
  text += ')';
  return nullptr;
}

}  // namespace

sorted_blocks SortByX(const design& document) {
  // The blocks lie all over the memory, so each is looked at once.
  struct placed {
    std::int64_t x;
    const dvblock* block;
    bool is_register;
  };
  std::vector<placed> all;
  all.reserve(document.blocks.size());
  for (const dvblock& block : document.blocks) {
    all.push_back({block.x, &block, IsRegisterClass(block.lib)});
  }
  sorted_blocks sorted;
  sorted.was_sorted = std::ranges::is_sorted(all, {}, &placed::x);
  if (!sorted.was_sorted) std::ranges::stable_sort(all, {}, &placed::x);
  for (const placed& each : all) {
    (each.is_register ? sorted.registers : sorted.others).push_back(each.block);
  }
  return sorted;
}

void AppendDeclarations(source_lines& to, const placed_blocks& registers, register_pool& pool,
                        expert_mode mode) {
  Declare(to, registers, kMemoryDeclaration,
          [&](const std::string& name) { return TakeDeclaration(FindMemoryRegister(pool, name)); });
  // kept: a core register placed twice is declared twice.
  if (mode == expert_mode::kOn) {
    Declare(to, registers, kCoreDeclaration, [](const std::string&) { return true; });
  }
  // kept: a preset register is declared once in a run of the program, not once in a file.
  Declare(to, registers, kPresetDeclaration,
          [&](const std::string& name) { return TakeDeclaration(FindPresetRegister(pool, name)); });
}

std::optional<report> AppendCalls(source_lines& to, std::span<const dvblock* const> blocks,
                                  const pin_registers& registers) {
  std::vector<argument> arguments;
  for (const dvblock* block : blocks) {
    ListArguments(*block, arguments);
    const std::size_t start = to.text.size();
    if (const argument* unset = AppendCall(to.text, *block, arguments, registers)) {
      to.text.resize(start);
      return UnsetParameter(*block, unset->name);
    }
    EndLine(to, *block, start);
  }
  return std::nullopt;
}

}  // namespace mardel
