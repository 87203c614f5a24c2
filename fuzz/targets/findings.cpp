// What is found of a design agrees with what is written of it.
#include "codegen/findings/design_findings.h"

#include "codegen/findings/explanation.h"
#include "codegen/source_writer.h"
#include "fuzz/fuzzed_design.h"
#include "tests/support/fixed_moment.h"

namespace mardel {
namespace {

// The lines behind the two of the header.
std::string Body(const std::string& source) {
  return source.substr(source.find('\n', source.find('\n') + 1) + 1);
}

void RequireArguments(const design& document, const std::vector<net_node>& nodes) {
  const pin_registers registers(nodes);
  for (const dvblock& block : document.blocks) {
    if (IsRegisterClass(block.lib)) continue;
    for (const pin& p : block.pins) {
      Require(!registers.Find({block.id, p.pin_num}).empty(), "an argument for each pin");
    }
  }
}

}  // namespace

void TryInput(std::string_view input) {
  fuzzed_design loaded(input);
  if (!loaded.IsLoaded()) return;
  raw_design raw;
  if (ReadRawDesign(raw, input.substr(0, input.find('\0')), "\n") != load_status::kLoaded) return;
  register_pool pool = ChipRegisters();
  const known_libraries& known = loaded.Libraries();
  const design_findings found = FindAll(std::move(raw), {known.set, known.metrics, "\n"}, pool);
  const design& document = found.document;
  const explanation explained = ExplainDesign(document, found.nodes, pool, expert_mode::kOn);
  if (!found.errors.empty()) return;
  const source_text source =
      SourceText(document, found.nodes, pool, {"", FixedMoment(), expert_mode::kOn});
  Require(!source.problem, "what has no errors is written whole");
  Require(explained.source == Body(source.text), "the explanation is of the source");
  if (found.warnings.empty()) RequireArguments(document, found.nodes);
}

}  // namespace mardel
