// The canvas as a screen reader meets it.
#pragma once

namespace mardel {

// Offers blocks, pins and notes as named children of each canvas that is made. To be called once,
// with a running QApplication.
void OfferCanvasParts();

}  // namespace mardel
