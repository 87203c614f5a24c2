#include "codegen/netlist.h"

#include <gtest/gtest.h>

#include "app/reports.h"
#include "codegen/design_check.h"
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
    const auto built = BuildNetlist(c.document, pool);
    const auto* nodes = std::get_if<0>(&built);
    std::string outcome = nodes != nullptr ? Describe(*nodes) + '\n' : "";
    if (nodes == nullptr) ShowReport(desk, std::get<report>(built));
    for (const std::string& call : desk.calls) outcome += call + '\n';
    EXPECT_EQ(outcome, c.expected) << file;
  }
}

TEST(Netlist, ChecksParametersThenPinsBlockByBlock) {
  for (const auto& file : Fixtures("checks")) {
    const wired_case c(file);
    std::string outcome;
    for (const auto& problems : {FindTypeMismatches(c.document, problem_search::kAll),
                                 CheckDesign(c.document, problem_search::kAll)}) {
      for (const report& each : problems) outcome += ReportLine(each.text) + '\n';
    }
    EXPECT_EQ(outcome, c.expected) << file;
    std::vector<report> all = CheckDesign(c.document, problem_search::kAll);
    all.resize(std::min<std::size_t>(all.size(), 1));
    EXPECT_EQ(CheckDesign(c.document, problem_search::kFirst), all);
  }
}

}  // namespace
}  // namespace mardel
