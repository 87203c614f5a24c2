#include "library/builtin_libraries.h"

#include <array>
#include <span>
#include <string>
#include <utility>

namespace mardel {

namespace {

enum class register_pin { kNone, kOutput, kInput };

constexpr const char* kNoPreset = nullptr;

// `count` blocks named first, number, last; with a count of 0 the single block `first`.
struct register_series {
  const char* first;
  int count;
  const char* last;
  register_pin pin;
  const char* preset;
};

constexpr register_series kCoreRegisters[] = {
    {"R", 16, "", register_pin::kOutput, "0"},
    {"ACC32", 0, "", register_pin::kOutput, "0"},
    {"FLAGS", 0, "", register_pin::kOutput, kNoPreset},
};

constexpr register_series kMemoryRegisters[] = {{"MR", 128, "", register_pin::kOutput, "0"}};

constexpr register_series kSpecialFunctionRegisters[] = {
    {"IN", 4, "", register_pin::kOutput, kNoPreset},
    {"OUT", 4, "", register_pin::kInput, kNoPreset},
    {"PIN", 0, "", register_pin::kOutput, kNoPreset},
    {"SWITCH", 0, "", register_pin::kOutput, kNoPreset},
    {"POT", 6, "_K", register_pin::kOutput, "0x0000000A"},
    {"POT", 6, "", register_pin::kOutput, kNoPreset},
    {"POT", 6, "_SMTH", register_pin::kOutput, kNoPreset},
    {"LFO", 4, "_F", register_pin::kOutput, "0"},
    {"RAMP", 2, "_F", register_pin::kOutput, "0"},
    {"LFO0_S", 0, "", register_pin::kOutput, kNoPreset},
    {"LFO0_C", 0, "", register_pin::kOutput, kNoPreset},
    {"LFO1_S", 0, "", register_pin::kOutput, kNoPreset},
    {"LFO1_C", 0, "", register_pin::kOutput, kNoPreset},
    {"LFO2_S", 0, "", register_pin::kOutput, kNoPreset},
    {"LFO2_C", 0, "", register_pin::kOutput, kNoPreset},
    {"LFO3_S", 0, "", register_pin::kOutput, kNoPreset},
    {"LFO3_C", 0, "", register_pin::kOutput, kNoPreset},
    // kept: four outputs for two ramps; designs name all four.
    {"RAMP", 4, "_R", register_pin::kOutput, kNoPreset},
    {"MAXTEMPO", 0, "", register_pin::kOutput, "0x00007FFF"},
    {"TAPTEMPO", 0, "", register_pin::kOutput, kNoPreset},
    {"SAMPLECNT", 0, "", register_pin::kOutput, kNoPreset},
    {"NOISE", 0, "", register_pin::kOutput, kNoPreset},
    {"BOOTSTAT", 0, "", register_pin::kOutput, kNoPreset},
    // Reload values: placed only to be given a preset.
    {"TAPSTKRLD", 0, "", register_pin::kNone, "0x00008CA0"},
    {"TAPDBRLD", 0, "", register_pin::kNone, "0x000001E0"},
    {"SWDBRLD", 0, "", register_pin::kNone, "0x000001E0"},
    {"PRGDBRLD", 0, "", register_pin::kNone, "0x00000960"},
    {"OFLRLD", 0, "", register_pin::kNone, "0x000003C0"},
};

constexpr unsigned kDoubling = 0;

// Names as in register_series. Values start at `value` and grow by `step`, or double.
struct constant_series {
  const char* first;
  int count;
  const char* last;
  std::size_t digits;
  unsigned value;
  unsigned step;
};

// Two digits for selectors, four for bit masks.
constexpr constant_series kConstants[] = {
    {"LFO", 4, "", 4, 0x0000, 2},
    {"SIN", 0, "", 2, 0x00, 0},
    {"COS", 0, "", 2, 0x01, 0},
    {"POS", 0, "", 2, 0x00, 0},
    {"NEG", 0, "", 2, 0x08, 0},
    {"RMP", 2, "", 2, 0x00, 1},
    {"L512", 0, "", 2, 0x00, 0},
    {"L1024", 0, "", 2, 0x04, 0},
    {"L2048", 0, "", 2, 0x08, 0},
    {"L4096", 0, "", 2, 0x0C, 0},
    {"XF", 4, "", 2, 0x00, 0x10},
    {"USER", 2, "", 2, 0x00, 0x20},
    {"OUT", 4, "OFLO", 4, 0x1000, kDoubling},
    {"IN", 4, "OFLO", 4, 0x0100, kDoubling},
    {"TAP", 0, "", 4, 0x0040, 0},
    {"TB2NTB1", 0, "", 4, 0x0020, 0},
    {"TAPSTKY", 0, "", 4, 0x0010, 0},
    {"NEWTT", 0, "", 4, 0x0008, 0},
    {"TAPRE", 0, "", 4, 0x0004, 0},
    {"TAPPE", 0, "", 4, 0x0002, 0},
    {"SW", 5, "", 4, 0x0001, kDoubling},
    {"SW", 5, "RE", 4, 0x0020, kDoubling},
    {"SW", 5, "PE", 4, 0x0400, kDoubling},
    {"PLLRANGE", 2, "", 4, 0x0001, kDoubling},
    {"MNS", 0, "", 4, 0x0004, 0},
    {"I2CA", 7, "", 4, 0x0008, kDoubling},
    {"PR", 16, "", 4, 0x0001, kDoubling},
};

template <class series>
std::string NameInSeries(const series& row, int number) {
  return row.count == 0 ? row.first : row.first + std::to_string(number) + row.last;
}

template <class series>
int BlocksIn(const series& row) {
  return row.count == 0 ? 1 : row.count;
}

pin OutputPin(const std::string& type) {
  return {.pin_name = "OUT", .pin_type = type, .pin_side = "R", .pin_desc = "Output pin"};
}

void StageRegisters(library_loading& so_far, const std::string& lib,
                    std::span<const register_series> rows) {
  const pin output = OutputPin(lib);
  const pin input{.pin_name = "IN", .pin_type = "SFR", .pin_side = "L", .pin_desc = "Input pin"};
  param preset{.param_name = "Preset",
               .param_type = "Number",
               .param_value = "",
               .param_desc = "Preset value for register"};
  for (const register_series& row : rows) {
    for (int number = 0; number < BlocksIn(row); ++number) {
      blockdef& block = so_far.staged.emplace_back();
      block.lib = lib;
      block.sub = NameInSeries(row, number);
      if (row.pin == register_pin::kOutput) block.pins.push_back(output);
      if (row.pin == register_pin::kInput) block.pins.push_back(input);
      if (row.preset == kNoPreset) continue;
      preset.param_value = row.preset;
      block.params.push_back(preset);
    }
  }
}

std::string Hexadecimal(unsigned value, std::size_t digits) {
  std::string text(digits, '0');
  for (auto digit = text.rbegin(); digit != text.rend(); ++digit, value /= 16) {
    *digit = "0123456789ABCDEF"[value % 16];
  }
  return text;
}

void StageConstants(library_loading& so_far) {
  const pin output = OutputPin("CONST");
  for (const constant_series& row : kConstants) {
    unsigned value = row.value;
    for (int number = 0; number < BlocksIn(row); ++number) {
      blockdef& block = so_far.staged.emplace_back();
      block.lib = "CONST";
      block.sub = NameInSeries(row, number);
      block.desc = "Value: 0x" + Hexadecimal(value, row.digits);
      block.pins.push_back(output);
      value += row.step == kDoubling ? value : row.step;
    }
  }
}

// The staged blocks' library.
void Register(library_loading& so_far, library added) {
  const std::string title = added.name;
  AddLibrary(so_far, std::move(added));
  RegisterStaged(so_far, title);
  ++so_far.next_id;
}

}  // namespace

void BuildBuiltinLibraries(library_loading& so_far, expert_mode mode) {
  if (mode == expert_mode::kOn) {
    ++so_far.next_id;
    StageRegisters(so_far, "CREG", kCoreRegisters);
    Register(so_far,
             {"CREG", "Core registers of the Dravik - expert mode", Rgba(255, 255, 255), kBlack});
  }
  StageRegisters(so_far, "MREG", kMemoryRegisters);
  Register(so_far, {"MREG", "Memory registers of the Dravik, 128 of them called MR0 to MR127",
                    Rgba(153, 204, 255), kBlack});
  StageRegisters(so_far, "SFR", kSpecialFunctionRegisters);
  Register(so_far, {"SFR", "Special function registers like inputs, outputs, POTs, etc.",
                    Rgba(102, 210, 51), kBlack});
  StageConstants(so_far);
  Register(so_far, {"CONST", "Constants typically used with masking in an instruction/block",
                    Rgba(255, 153, 51), kBlack});
}

register_pool ChipRegisters() {
  register_pool pool;
  for (int number = 0; number < kMemoryRegisters[0].count; ++number) {
    pool.memory.push_back({.name = NameInSeries(kMemoryRegisters[0], number)});
  }
  for (const register_series& row : kSpecialFunctionRegisters) {
    if (row.preset == kNoPreset) continue;
    for (int number = 0; number < BlocksIn(row); ++number) {
      pool.presets.push_back({.name = NameInSeries(row, number)});
    }
  }
  return pool;
}

}  // namespace mardel
