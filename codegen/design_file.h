// Design files (".mrd").
#pragma once

#include <string>
#include <string_view>

#include "editor/design.h"
#include "library/library_set.h"
#include "platform/files.h"
#include "platform/ui.h"

namespace mardel {

// The text of the file. kept: only notes are escaped, so a value holding "<" or "&" makes a file
// that does not open again; the chip maker's tools read these values raw.
std::string DesignText(const design& document);

// Writes the file; neither the flag nor the name of the design changes.
write_status SaveDesign(const design& document, const std::string& path);

enum class load_status { kLoaded, kNotLoaded, kMalformed };

struct load_result {
  load_status status = load_status::kLoaded;
  int missing_blocks = 0;  // blocks removed because no library has them
};

struct load_context {
  const library_set& libraries;
  const text_metrics& metrics;
  std::string_view line_separator;  // of notes, by host family
  ui& desk;                         // shows what went wrong
};

// Replaces the design by the file's, links its blocks to their definitions, and names it after
// `path`
// ("" when it can't be read, which leaves an empty design). Neither redraws nor sets the title.
load_result LoadDesign(design& document, const std::string& path, const load_context& context);

}  // namespace mardel
