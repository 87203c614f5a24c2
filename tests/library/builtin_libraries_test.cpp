#include "library/builtin_libraries.h"

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
    registration r;
    register_pool pool;
    BuildBuiltinLibraries(r.set, pool, r.builder, mode);
    EXPECT_EQ(
        Describe(r, 0) + Describe(pool) + "next " + std::to_string(r.next_id) + '\n',
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
