// What is checked and written of a design.
#include "codegen/source_writer.h"

#include "fuzz/loaded_design.h"
#include "tests/support/files.h"
#include "tests/support/fixed_clock.h"

namespace mardel {
namespace {

struct written {
  std::string text;
  bool is_complete = false;
};

// With registers of which none is declared yet.
written Write(loaded_design& loaded, const std::vector<net_node>& nodes, register_pool pool) {
  static const scratch_folder folder;
  const std::string path = folder.Path() + "out.dvc";
  const settings options{.files_path = "/programs/", .expert = expert_mode::kOn};
  loaded.desk.paths = {path};
  const source_result result =
      WriteSource(loaded.document, nodes, pool, {options, fixed_clock(), loaded.desk});
  Require(result.path == path && result.status == write_status::kWritten, "a source is written");
  Require(std::ranges::is_sorted(loaded.document.blocks, {}, &dvblock::x), "blocks in order");
  return {ReadAll(path), result.is_complete};
}

// kept: what the definition lacks has no type, and is written as a parameter without a value.
bool HasUnknownPin(const design& document) {
  return std::ranges::any_of(document.blocks, [](const dvblock& block) {
    return std::ranges::any_of(block.pins, [](const pin& p) { return p.pin_type.empty(); });
  });
}

}  // namespace

void TryInput(std::string_view input) {
  loaded_design loaded(input);
  if (!loaded.IsLoaded()) return;
  const design& document = loaded.document;
  const auto unset = FindUnsetAndUnconnected(document, problem_search::kAll);
  Require(CheckDesign(document, loaded.desk) == unset.empty(), "the check finds what there is");
  const auto mismatches = FindTypeMismatches(document, problem_search::kAll);
  register_pool pool = loaded.Libraries().pool;
  const auto nodes = BuildNetlist(document, pool, loaded.desk);
  Require(nodes.has_value() == mismatches.empty(), "a mismatch is refused");
  if (!nodes) return;
  const written first = Write(loaded, *nodes, pool);
  Require(first.is_complete || !unset.empty() || HasUnknownPin(document),
          "a checked design has a whole source");
  const written second = Write(loaded, *nodes, pool);
  Require(first.text == second.text, "the same design gives the same source");
}

}  // namespace mardel
