// Design files: loading, linking to the libraries, drawing, and saving what was loaded.
#include "editor/drawn_extent.h"
#include "fuzz/fuzzed_design.h"

namespace mardel {
namespace {

// Of all values that a design file holds as they stand.
std::string RawValues(const design& document) {
  std::string all;
  for (const dvblock& block : document.blocks) {
    all += block.lib + ' ' + block.sub + ' ';
    for (const pin& p : block.pins) all += p.pin_name + " ";
    for (const param& p : block.params) all += p.param_name + " " + p.param_value + ' ';
  }
  for (const net& wire : document.nets) all += wire.pin_1_name + ' ' + wire.pin_2_name + ' ';
  return all;
}

// Whether saving and loading gives the same design, which such values prevent.
bool IsStorable(const design& document) {
  const std::string values = RawValues(document);
  return values.find_first_of("<&\r") == std::string::npos &&
         values.find("]]>") == std::string::npos;
}

void CheckLinks(const fuzzed_design& loaded) {
  for (const dvblock& block : loaded.document.blocks) {
    const auto definitions = loaded.Libraries().set.FindDefinitions(block.lib, block.sub);
    Require(!definitions.empty(), "every block that is left has a definition");
    Require(block.id != loaded.document.next_block_id, "its id is taken");
  }
  for (const textblock& note : loaded.document.texts) {
    Require(note.width > 0 && note.height > 0, "a note has a size");
  }
}

}  // namespace

void TryInput(std::string_view input) {
  fuzzed_design loaded(input);
  const design& document = loaded.document;
  if (!loaded.IsLoaded()) {
    Require(document.blocks.empty() && document.file_name.empty(), "what isn't loaded is empty");
    return;
  }
  CheckLinks(loaded);
  const drawing_context how{loaded.Libraries().set, loaded.Libraries().metrics};
  recording_painter canvas;
  DrawDesign(canvas, document, how);
  DrawnExtent(document, how);
  const std::string saved = DesignText(document);
  if (!IsStorable(document)) return;
  loaded.Load(saved);
  Require(loaded.IsLoaded() && loaded.reports.empty(), "what was saved opens again");
  Require(DesignText(document) == saved, "and is saved to the same bytes");
}

}  // namespace mardel
