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

}  // namespace
}  // namespace mardel
