#include "library/library_loader.h"

#include <gtest/gtest.h>

#include <sstream>

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

std::string Builtin(expert_mode mode, int first_id) {
  const byte_metrics metrics;
  const loaded_libraries loaded = LoadLibraries("/no/such/", mode, first_id, metrics);
  return Describe(loaded.libraries, 0, 0) + Describe(ChipRegisters()) + "next " +
         std::to_string(loaded.next_id) + '\n';
}

TEST(BuiltinLibraries, AreAsTheChipHasThem) {
  const std::string expert = ReadAll(MARDEL_SOURCE_DIR "/tests/fixtures/builtin_libraries.txt");
  EXPECT_EQ(Builtin(expert_mode::kOn, 26), expert);
  // Without the core registers, and with the ids that these take.
  std::istringstream lines(expert);
  std::string plain;
  for (std::string line; std::getline(lines, line);) {
    if (line.find("CREG") == std::string::npos) plain += line + '\n';
  }
  EXPECT_EQ(Builtin(expert_mode::kOff, 46), plain);
}

}  // namespace
}  // namespace mardel
