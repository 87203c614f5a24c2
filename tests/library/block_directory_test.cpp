#include "library/block_directory.h"

#include <gtest/gtest.h>

#include "library/builtin_libraries.h"
#include "tests/library/description.h"
#include "tests/support/scripted_ui.h"

namespace mardel {
namespace {

// The built-in libraries, then "own" and "late" with blocks in the order own, late, own, and a
// library without blocks.
library_set SampleSet() {
  registration r;
  register_pool pool;
  BuildBuiltinLibraries(r.set, pool, r.builder, expert_mode::kOff);
  for (const char* name : {"own", "late", "empty"}) {
    r.set.AddLibrary({.name = name, .desc = std::string("About ") + name});
  }
  r.set.staged = {{.lib = "own", .sub = "a", .desc = "first"},
                  {.lib = "late", .sub = "b"},
                  {.lib = "own", .sub = "c"},
                  {.lib = "own", .sub = "a", .desc = "second"}};
  r.set.RegisterStaged("own", r.builder);
  return std::move(r.set);
}

TEST(BlockDirectory, ListsALibraryOnceForEachRun) {
  std::string tree;
  for (const tree_item& t : DirectoryTree(SampleSet())) {
    if (t.level == 0) tree += "| ";
    if (t.level == 0 || (t.text.size() == 1)) tree += t.text + ' ';
  }
  EXPECT_EQ(tree, "| MREG | SFR | CONST | own a | late b | own c a ");
  EXPECT_EQ(DirectoryTree(SampleSet()).size(), 128U + 56U + 75U + 4U + 6U);
}

TEST(BlockDirectory, ExplainsTheSelectedLine) {
  const library_set set = SampleSet();
  const std::vector<tree_item> tree = DirectoryTree(set);
  const struct {
    int selected;
    const char* text;
  } cases[] = {
      {-1, ""},
      {269, ""},
      {129, "Special function registers like inputs, outputs, POTs, etc."},
      {6,
       "Library: MREG\r\nBlock: MR5\r\n\r\n\r\n\r\nPins: \r\nOUT : Output pin\r\n\r\n"
       "Parameters: \r\nPreset : Preset value for register\r\n"},
      {181,
       "Library: SFR\r\nBlock: TAPSTKRLD\r\n\r\n\r\n\r\nPins: \r\n\r\n"
       "Parameters: \r\nPreset : Preset value for register\r\n"},
      {187,
       "Library: CONST\r\nBlock: LFO0\r\n\r\nValue: 0x0000\r\n\r\nPins: \r\n"
       "OUT : Output pin\r\n\r\nParameters: \r\n"},
      {266, "About own"},
      {268, "Library: own\r\nBlock: a\r\n\r\nfirst\r\n\r\nPins: \r\n\r\nParameters: \r\n"},
  };
  for (const auto& c : cases) EXPECT_EQ(DirectoryText(set, tree, c.selected), c.text) << c.selected;
}

TEST(BlockDirectory, ShowsWhatIsSelectedInItsWindow) {
  const library_set set = SampleSet();
  scripted_ui desk;
  const int number = OpenBlockDirectory(set, desk);
  const window& shown = desk.windows.at(number);
  EXPECT_EQ(shown.title, "Block Directory");
  EXPECT_EQ(shown.width, 580);
  EXPECT_EQ(shown.height, 380);
  EXPECT_EQ(shown.modality, window_modality::kModeless);
  ASSERT_EQ(shown.gadgets.size(), 2U);
  EXPECT_EQ(shown.gadgets[0].kind, gadget_kind::kTree);
  EXPECT_EQ(shown.gadgets[0].place, (rectangle{10, 10, 160, 360}));
  EXPECT_EQ(shown.gadgets[1].kind, gadget_kind::kReadOnlyText);
  EXPECT_EQ(shown.gadgets[1].place, (rectangle{180, 10, 390, 360}));

  desk.selected_items[{number, 1}] = 264;
  HandleDirectoryGadget(set, desk, {number, 1});
  EXPECT_EQ(desk.GadgetText(number, 2), "About late");
}

}  // namespace
}  // namespace mardel
