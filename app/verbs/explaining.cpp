#include "app/verbs/explaining.h"

#include "app/verbs/checking.h"
#include "app/verbs/input.h"
#include "codegen/findings/explanation.h"
#include "platform/desktop.h"

namespace mardel {
namespace {

// Without these there are no nodes, or not those of the file.
bool IsInTheWay(rule of) {
  return of == rule::kDesignNotLoaded || of == rule::kDesignMalformed ||
         of == rule::kMissingBlock || of == rule::kTypeMismatch;
}

}  // namespace

// A design that is not ready is explained all the same, unless its wires make no nodes.
exit_status Run(const explain_request& asked) {
  const auto measures = FixedTextMetrics();
  headless_program run(*measures, asked.from);
  PrintReports(run.reports);
  if (run.status != exit_status::kDone) return run.status;
  checked_design checked = CheckInput(run, asked.design);
  std::erase_if(checked.errors,
                [](const found_report& each) { return !IsInTheWay(each.what.kind); });
  PrintReports(checked.errors);
  const exit_status refused = StatusOf(checked, warning_effect::kTold);
  if (refused != exit_status::kDone) return refused;
  const explanation all =
      ExplainDesign(checked.document, checked.nodes, run.registers, run.options.expert);
  return WriteOut(asked.format == text_format::kJson ? ExplanationJson(all) : ExplanationText(all));
}

}  // namespace mardel
