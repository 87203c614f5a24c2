#include "codegen/findings/design_findings.h"

#include <algorithm>

#include "codegen/design_check.h"
#include "codegen/findings/warnings.h"

namespace mardel {
namespace {

report Lost(rule kind, const char* what, const dvblock& block, const std::string& name) {
  return {.kind = kind,
          .text = {"Lost " + std::string(what) + " Error", "The library no longer has what is on " +
                                                               BlockName(block) + " " + what +
                                                               ": " + name},
          .where = PlaceOf(block)};
}

// Pins and parameters that the definitions of their blocks lack.
void FindLost(const design& linked, const library_set& libraries, std::vector<report>& found) {
  for (const dvblock& block : linked.blocks) {
    const auto definitions = libraries.FindDefinitions(block.lib, block.sub);
    const auto is_defined = [&](const param& p) {
      return std::ranges::any_of(definitions, [&](std::size_t index) {
        const auto& params = libraries.Definitions()[index].params;
        return std::ranges::count(params, p.param_name, &param::param_name) > 0;
      });
    };
    for (const param& p : block.params) {
      if (!is_defined(p))
        found.push_back(Lost(rule::kUnknownParameter, "parameter", block, p.param_name));
    }
    for (const pin& p : block.pins) {  // a defined one has a type
      if (p.pin_type.empty()) found.push_back(Lost(rule::kUnknownPin, "pin", block, p.pin_name));
    }
  }
}

void Append(std::vector<report>& to, std::vector<report> more) {
  std::ranges::move(more, std::back_inserter(to));
}

}  // namespace

design_findings FindAll(raw_design raw, const load_context& context, register_pool& pool) {
  design_findings found;
  found.warnings = FileWarnings(raw);
  Append(found.warnings, RepeatedIdWarnings(raw.document));
  Append(found.warnings, ValueWarnings(raw.document));
  found.document = std::move(raw.document);
  relinking linking = RelinkDesign(found.document, context);
  const design& linked = found.document;
  // Else the nets on removed blocks went with them.
  const bool is_whole = linking.missing.empty();
  found.errors = std::move(linking.missing);
  Append(found.errors, FindTypeMismatches(linked, problem_search::kAll));
  Append(found.errors, CheckDesign(linked, problem_search::kAll, linking.removed));
  FindLost(linked, context.libraries, found.errors);
  auto nodes = BuildNetlist(linked, pool);
  if (auto* const built = std::get_if<std::vector<net_node>>(&nodes)) {
    found.nodes = std::move(*built);
    if (is_whole) Append(found.warnings, NetlistWarnings(linked, found.nodes));
  }
  Append(found.warnings, PlaceWarnings(linked));
  return found;
}

std::vector<report> FindWarnings(const design& document, const std::vector<net_node>& nodes) {
  std::vector<report> found = RepeatedIdWarnings(document);
  Append(found, ValueWarnings(document));
  Append(found, NetlistWarnings(document, nodes));
  Append(found, PlaceWarnings(document));
  return found;
}

}  // namespace mardel
