// A rubber band selects blocks and notes, which are then moved or deleted together.
#pragma once

#include "editor/workspace.h"

namespace mardel {

void BeginRubberBand(workspace& work, point at);
void StretchRubberBand(canvas_view& canvas, const rubber_band& hand, point at);
// Selects what lies wholly inside the band.
void FinishRubberBand(workspace& work, const rubber_band& hand, point at);

// All blocks and notes.
void SelectAll(design& document);
void DeleteSelection(workspace& work);

}  // namespace mardel
