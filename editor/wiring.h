// A wire is drawn from pin to pin; the nets of a pin are shown in colours of their own.
#pragma once

#include <array>

#include "editor/workspace.h"

namespace mardel {

// The highlights of the nets of one pin, in net list order; they start again after the last.
inline constexpr std::array kNetPalette = {
    Rgba(230, 25, 75),  Rgba(60, 180, 75),   Rgba(255, 225, 25), Rgba(67, 99, 216),
    Rgba(245, 130, 49), Rgba(66, 212, 244),  Rgba(240, 50, 230), Rgba(250, 190, 212),
    Rgba(70, 153, 144), Rgba(220, 190, 255), Rgba(154, 99, 36),  Rgba(255, 250, 200),
    Rgba(128, 0, 0),    Rgba(170, 255, 195), Rgba(0, 0, 117),
};

void BeginWire(workspace& work, const pin_hit& start);
void StretchWire(canvas_view& canvas, const wire_drag& hand, point at);
// Makes a net when the wire ends on a pin of the same type as that where it began.
void FinishWire(workspace& work, const wire_drag& hand, point at);

// Marks the nets of that pin as selected, and no others.
void HighlightNets(design& document, const pin_hit& of);
void ResetNets(design& document);

}  // namespace mardel
