// What a design does that its rules allow but its user can hardly mean.
#pragma once

#include <string_view>
#include <vector>

#include "codegen/design_reader.h"
#include "codegen/findings/node_explanation.h"
#include "library/report.h"

namespace mardel {

// Of wires and registers: nodes without one or with two, pins whose argument is not their wire's
// register. `nodes` is what BuildNetlist made of the design.
std::vector<report> NetlistWarnings(const design& document, const std::vector<net_node>& nodes);

// Of places: blocks off the canvas, and what lies wholly under another.
std::vector<report> PlaceWarnings(const design& document);

// Of a file that is no design.
std::vector<report> FileWarnings(const raw_design& raw);

// Of ids used twice.
std::vector<report> RepeatedIdWarnings(const design& document);

// Of values that a save can't keep.
std::vector<report> ValueWarnings(const design& document);

report Warning(rule kind, const char* title, std::string text, const design_place& where);

// "block 3, Gain"
std::string BlockName(const dvblock& block);
design_place PlaceOf(const dvblock& block);
design_place PlaceOf(const net& wire);

}  // namespace mardel
