// New, Open, Save and Save as.
#pragma once

#include <string>

#include "app/program.h"

namespace mardel {

void New(program& app);
// kept: the design is emptied before the requester is shown, so cancelling leaves an empty design
// under the old file's name.
void Open(program& app);
void Save(program& app);
void SaveAs(program& app);

// Replaces the design by the file's.
void OpenFile(program& app, const std::string& path);

}  // namespace mardel
