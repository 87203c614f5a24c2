// What the toolkit says to developers.
#pragma once

namespace mardel {

// Nothing is logged, and a platform that can't be started ends the process quietly with a failure.
void QuietToolkit();

}  // namespace mardel
