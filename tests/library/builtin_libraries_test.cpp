#include "library/library_loader.h"

#include <gtest/gtest.h>

#include "tests/library/description.h"
#include "tests/support/files.h"

namespace mardel {
namespace {

std::string Describe(const register_pool& pool) {
  std::string text = "memory";
  for (const memory_register& m : pool.memory) text += ' ' + m.name;
  text += "\npresets";
  for (const preset_register& p : pool.presets) text += ' ' + p.name;
  return text + '\n';
}

TEST(BuiltinLibraries, AreAsTheChipHasThem) {
  const std::pair<const char*, expert_mode> cases[] = {{"expert.txt", expert_mode::kOn},
                                                       {"plain.txt", expert_mode::kOff}};
  for (const auto& [expected, mode] : cases) {
    const byte_metrics metrics;
    const loaded_libraries loaded = LoadLibraries("/no/such/", mode, 26, metrics);
    EXPECT_EQ(
        Describe(loaded.libraries, 0, 0) + Describe(ChipRegisters()) + "next " +
            std::to_string(loaded.next_id) + '\n',
        ReadAll(MARDEL_SOURCE_DIR "/tests/fixtures/builtin_libraries/" + std::string(expected)));
  }
}

TEST(RegisterPool, FindsRegistersByName) {
  register_pool pool{{{"MR0"}, {"MR1"}}, {{"POT0_K"}, {"OFLRLD"}}};
  EXPECT_EQ(FindMemoryRegister(pool, "MR1"), &pool.memory[1]);
  EXPECT_EQ(FindMemoryRegister(pool, "MR"), nullptr);
  EXPECT_EQ(FindPresetRegister(pool, "OFLRLD"), &pool.presets[1]);
  EXPECT_EQ(FindPresetRegister(pool, "POT0"), nullptr);
}

}  // namespace
}  // namespace mardel
