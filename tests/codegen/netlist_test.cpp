#include "codegen/netlist.h"

#include <gtest/gtest.h>

#include "tests/codegen/wired_design.h"
#include "tests/support/files.h"
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

}  // namespace
}  // namespace mardel
