#include "platform/text.h"

#include <gtest/gtest.h>

namespace mardel {
namespace {

TEST(Text, CutsTheSameFromPieces) {
  std::string whole;
  for (int i = 0; i < 500; ++i) whole += std::to_string(i) + "é";
  for (const std::size_t piece : {1U, 7U, 64U, 5000U}) {
    cut_text kept(100);
    for (std::size_t at = 0; at < whole.size(); at += piece) kept.Append(whole.substr(at, piece));
    EXPECT_EQ(kept.Text(), CutMiddle(whole, 100)) << piece;
  }
}

}  // namespace
}  // namespace mardel
