#include "library/library_loading.h"

#include <gtest/gtest.h>

#include "tests/library/description.h"

namespace mardel {
namespace {

TEST(LayOut, RoundsMeasuresToWholePixels) {
  class : public byte_metrics {
    double Width(std::string_view /*text*/) const override { return 20.5; }
    double LineHeight() const override { return 18.4; }
  } fractions;
  blockdef block;
  LayOut(block, fractions);
  EXPECT_EQ(DescribeShape(block), "   45x42:");
}

TEST(LibrarySet, FindsByNamePairAndId) {
  const byte_metrics metrics;
  library_loading so_far{.metrics = metrics, .next_id = 26};
  AddLibrary(so_far, {.name = "Straße"});
  for (const char* sub : {"a", "b", "a"}) so_far.staged.push_back({.lib = "Straße", .sub = sub});
  RegisterStaged(so_far, "Straße");
  AddLibrary(so_far, {.name = "Äther"});
  EXPECT_EQ(CurrentLibrary(so_far).name, "Äther");
  EXPECT_EQ(SelectIgnoringCase(so_far, "STRASSE"), nullptr);
  EXPECT_EQ(SelectIgnoringCase(so_far, "STRAßE"), &so_far.records.libraries[0]);
  EXPECT_EQ(CurrentLibrary(so_far).name, "Straße");

  const library_set set(so_far.records);
  const auto twins = set.FindDefinitions("Straße", "a");
  EXPECT_EQ(std::vector<std::size_t>(twins.begin(), twins.end()), (std::vector<std::size_t>{0, 2}));
  EXPECT_TRUE(set.FindDefinitions("straße", "a").empty());
  EXPECT_TRUE(set.FindDefinitions("Straße", "c").empty());
  for (const int reserved : {25, 29, -2}) EXPECT_EQ(set.FindDefinition(reserved), nullptr);
  EXPECT_EQ(set.FindLibrary("äther"), nullptr);
  EXPECT_EQ(set.FindLibrary("Äther"), &set.Libraries()[1]);
}

}  // namespace
}  // namespace mardel
