// Where the text of a label, a check box or an option goes when it is wider than its place.
#pragma once

#include <QRect>

#include "platform/ui.h"

namespace mardel {

// As the table has it.
QRect PlaceOf(const gadget& described);

// The gadget's place, grown to `wanted` pixels so far as the window and its neighbours in the row
// leave room: a right label to the left first, a centred one to both sides, others to the right.
QRect FittingPlace(const window& contents, const gadget& described, int wanted);

}  // namespace mardel
