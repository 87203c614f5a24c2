// What the toolkit says to developers.
#pragma once

namespace mardel {

// One line on standard error.
void SayNoWindow();

// Nothing is logged unless QT_DEBUG_PLUGINS is set, and a platform that can't be started ends the
// process with one line and a failure.
void QuietToolkit();

// The same for the command line, where a line on standard error says it and the status is 3.
void QuietToolkitForPictures();

}  // namespace mardel
