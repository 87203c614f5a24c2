// The end of a program that nothing can save.
#pragma once

namespace mardel {

// From now on a shortage of memory that nothing else handles ends the process with one line on
// standard error and the command line's status for what the system lacks.
void TellShortMemory();

}  // namespace mardel
