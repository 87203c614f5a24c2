// New, Open, Save and Save as.
#pragma once

#include <string>
#include <vector>

#include "app/program.h"
#include "codegen/design_file.h"

namespace mardel {

void New(program& app);
// kept: the design is emptied before the requester is shown, so cancelling leaves an empty design
// under the old file's name.
void Open(program& app);
void Save(program& app);
void SaveAs(program& app);

// Replaces the design by the file's.
void OpenFile(program& app, const std::string& path);
// Opens the one design file among `paths`; says in the status bar when they are anything else.
void OpenDropped(program& app, const std::vector<std::string>& paths);

// What reading a design depends on.
load_context LoadContext(const program& app);

}  // namespace mardel
