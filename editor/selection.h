// A rubber band selects blocks and notes, which are then moved or deleted together.
#pragma once

#include "editor/workspace.h"

namespace mardel {

void BeginRubberBand(workspace& work, const surroundings& outside, point at);
void StretchRubberBand(workspace& work, const surroundings& outside, point at);
// Selects what lies wholly inside the band.
void FinishRubberBand(workspace& work, const surroundings& outside, point at);

void DeleteSelection(workspace& work, const surroundings& outside);

}  // namespace mardel
