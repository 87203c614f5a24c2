// What is checked and written of a design.
#include "codegen/design_check.h"
#include "codegen/source_writer.h"
#include "fuzz/fuzzed_design.h"
#include "tests/support/files.h"
#include "tests/support/fixed_moment.h"

namespace mardel {
namespace {

struct written {
  std::string text;
  bool is_complete = false;
};

// With registers of which none is declared yet.
written Write(fuzzed_design& loaded, const std::vector<net_node>& nodes, register_pool pool) {
  static const scratch_folder folder;
  const std::string path = folder.Path() + "out.dvc";
  const source_result result =
      WriteSource(loaded.document, nodes, pool, {path, FixedMoment(), expert_mode::kOn});
  Require(result.status == write_status::kWritten, "a source is written");
  Require(std::ranges::is_sorted(loaded.document.blocks, {}, &dvblock::x), "blocks in order");
  return {ReadAll(path), !result.problem};
}

// kept: what the definition lacks has no type, and is written as a parameter without a value.
bool HasUnknownPin(const design& document) {
  return std::ranges::any_of(document.blocks, [](const dvblock& block) {
    return std::ranges::any_of(block.pins, [](const pin& p) { return p.pin_type.empty(); });
  });
}

}  // namespace

void TryInput(std::string_view input) {
  fuzzed_design loaded(input);
  if (!loaded.IsLoaded()) return;
  const design& document = loaded.document;
  const auto unset = CheckDesign(document, problem_search::kAll);
  Require(CheckDesign(document, problem_search::kFirst).empty() == unset.empty(),
          "the check finds what there is");
  const auto mismatches = FindTypeMismatches(document, problem_search::kAll);
  register_pool pool = ChipRegisters();
  const auto built = BuildNetlist(document, pool);
  const auto* nodes = std::get_if<0>(&built);
  Require((nodes != nullptr) == mismatches.empty(), "a mismatch is refused");
  if (nodes == nullptr) return;
  const written first = Write(loaded, *nodes, pool);
  Require(first.is_complete || !unset.empty() || HasUnknownPin(document),
          "a checked design has a whole source");
  const written second = Write(loaded, *nodes, pool);
  Require(first.text == second.text, "the same design gives the same source");
}

}  // namespace mardel
