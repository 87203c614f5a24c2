#include "codegen/netlist.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/codegen/wired_design.h"
#include "tests/support/files.h"
#include "tests/support/literal_netlist.h"
#include "tests/support/scripted_ui.h"

namespace mardel {
namespace {

// Fixtures hold a line of blocks, one of nets, and what comes of them.
struct wired_case {
  explicit wired_case(const std::filesystem::path& file) {
    std::istringstream lines(ReadAll(file));
    std::string blocks, nets;
    std::getline(lines, blocks);
    std::getline(lines, nets);
    AddBlocks(document, blocks);
    AddNets(document, nets);
    expected.assign(std::istreambuf_iterator<char>(lines), {});
  }
  design document;
  std::string expected;
};

TEST(Netlist, IsAsWorkedOutByHand) {
  for (const auto& file : Fixtures("netlists")) {
    const wired_case c(file);
    register_pool pool = PoolOf(3);
    scripted_ui desk;
    const auto nodes = BuildNetlist(c.document, pool, desk);
    std::string outcome = nodes ? Describe(*nodes) + '\n' : "";
    for (const std::string& call : desk.calls) outcome += call + '\n';
    EXPECT_EQ(outcome, c.expected) << file;
  }
}

TEST(Netlist, ChecksParametersThenPinsBlockByBlock) {
  for (const auto& file : Fixtures("checks")) {
    const wired_case c(file);
    const auto mismatches = FindTypeMismatches(c.document, problem_search::kAll);
    const auto unset = FindUnsetAndUnconnected(c.document, problem_search::kAll);
    const auto line = [](const design_problem& p) { return p.report.title + ": " + p.report.text; };
    std::string outcome;
    for (const auto& problem : mismatches) outcome += line(problem) + '\n';
    for (const auto& problem : unset) outcome += line(problem) + '\n';
    EXPECT_EQ(outcome, c.expected) << file;

    scripted_ui desk;
    EXPECT_EQ(CheckDesign(c.document, desk), unset.empty());
    std::vector<std::string> shown;
    if (!unset.empty()) shown.push_back("message " + line(unset.front()));
    EXPECT_EQ(desk.calls, shown);
  }
}

// Few ids and names, so that nets meet, bridge and repeat; some start with many nodes apart, and
// some have two types, missing pins and missing blocks.
void FillAtRandom(design& document, std::mt19937& random) {
  const auto below = [&](int limit) {
    return static_cast<int>(random() % static_cast<unsigned>(limit));
  };
  const int ids = 2 + below(below(10) == 0 ? 100 : 30);
  const int names = 1 + below(3);
  const bool is_regular = below(4) != 0;
  for (int n = 0; n < ids + below(4); ++n) {
    const char* const names_of_blocks[] = {" d S",    " d S",      " MREG MR1",
                                           " SFR R0", " SFR POT0", " MREG M"};
    std::string block =
        std::to_string(is_regular && n < ids ? n : below(ids)) + names_of_blocks[below(6)];
    for (const char name : {'a', 'b', 'c'}) {
      const bool is_odd = !is_regular && below(60) == 0;
      block += std::string(" ") + name + (is_odd ? ":SFR" : ":MREG");
    }
    AddBlocks(document, block);
  }
  const auto end = [&](int id) { return std::to_string(id) + '.' + "abc"[below(names)]; };
  std::string nets;
  for (int id = ids * below(2); id > 1; id -= 2) nets += end(id - 1) + '-' + end(id - 2) + ' ';
  for (int n = below(3 * ids); n > 0; --n) nets += end(below(ids)) + '-' + end(below(ids)) + ' ';
  AddNets(document, nets);
}

TEST(Netlist, EqualsTheLiteralOneOnRandomDesigns) {
  int refused = 0, many_passes = 0, kept_apart = 0;
  for (unsigned seed = 0; seed < 6000; ++seed) {
    std::mt19937 random(seed);
    design document;
    FillAtRandom(document, random);
    register_pool pool = PoolOf(4), literal_pool = PoolOf(4);
    scripted_ui desk;
    const auto nodes = BuildNetlist(document, pool, desk);
    const literal_netlist literal = LiteralNetlist(document, literal_pool);
    ASSERT_EQ(nodes.has_value(), literal.mismatched == nullptr) << "seed " << seed;
    if (!nodes) {
      ++refused;
      ASSERT_EQ(FindTypeMismatches(document, problem_search::kFirst)[0].wire, literal.mismatched);
      continue;
    }
    ASSERT_EQ(Describe(*nodes), Describe(literal.nodes)) << "seed " << seed;
    many_passes += literal.passes > 3 ? 1 : 0;
    for (std::size_t n = 1; n < nodes->size(); ++n) {
      if (!ShareAnEnd((*nodes)[n - 1], (*nodes)[n])) continue;
      ++kept_apart;
      break;
    }
  }
  // The designs are worth comparing.
  EXPECT_GT(refused, 100);
  EXPECT_GT(many_passes, 100);
  EXPECT_GT(kept_apart, 100);
}

}  // namespace
}  // namespace mardel
