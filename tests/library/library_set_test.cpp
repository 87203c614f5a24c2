#include "library/library_set.h"

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
  registration r;
  r.set.AddLibrary({.name = "Straße"});
  for (const char* sub : {"a", "b", "a"}) r.set.staged.push_back({.lib = "Straße", .sub = sub});
  r.set.RegisterStaged("Straße", r.builder);
  r.set.AddLibrary({.name = "Äther"});

  const auto twins = r.set.FindDefinitions("Straße", "a");
  EXPECT_EQ(std::vector<std::size_t>(twins.begin(), twins.end()), (std::vector<std::size_t>{0, 2}));
  EXPECT_TRUE(r.set.FindDefinitions("straße", "a").empty());
  EXPECT_TRUE(r.set.FindDefinitions("Straße", "c").empty());
  for (const int reserved : {25, 29, -2}) EXPECT_EQ(r.set.FindDefinition(reserved), nullptr);
  EXPECT_EQ(r.set.FindLibrary("äther"), nullptr);
  EXPECT_EQ(r.set.FindLibrary("Äther"), &r.set.Current());
  EXPECT_EQ(r.set.SelectIgnoringCase("STRASSE"), nullptr);
  EXPECT_EQ(r.set.SelectIgnoringCase("STRAßE"), &r.set.Libraries()[0]);
  EXPECT_EQ(r.set.Current().name, "Straße");
}

}  // namespace
}  // namespace mardel
