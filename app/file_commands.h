// New, Open, Save and Save as.
#pragma once

#include <string>
#include <string_view>

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
load_result OpenFile(program& app, const std::string& path);

// What ends a line of a note, by SystemFamilyName.
std::string_view LineSeparator(std::string_view system_family);

}  // namespace mardel
