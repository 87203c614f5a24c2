// The other program of the installation.
#pragma once

#include <string>

namespace mardel {

// Replaces this process by program `name`, which lies beside this one's or in `folder`, seen from
// there. Returns only when there is none that can be started.
void BecomeProgram(const std::string& name, const std::string& folder, char** arguments);

}  // namespace mardel
