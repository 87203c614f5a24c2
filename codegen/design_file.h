// Design files (".mrd").
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "editor/design.h"
#include "library/library_set.h"
#include "library/report.h"
#include "platform/files.h"

namespace mardel {

constexpr std::string_view kDesignSuffix = ".mrd";

// The text of the file. kept: only notes are escaped, so a value holding "<" or "&" makes a file
// that does not open again; the chip maker's tools read these values raw.
std::string DesignText(const design& document);

// Writes the file; neither the flag nor the name of the design changes. kFailed, too, for a file
// that would be too large to open.
write_status SaveDesign(const design& document, const std::string& path);

enum class [[nodiscard]] load_status { kLoaded, kNotLoaded, kMalformed };

struct [[nodiscard]] loaded_design {
  load_status status = load_status::kLoaded;
  design document;  // named after the file; empty and without a name when it can't be read
  // Why it can't be read; else each block that was removed, since no library has it.
  std::vector<report> reports;
};

struct load_context {
  const library_set& libraries;
  const text_metrics& metrics;
  std::string_view line_separator;  // of notes, by host
};

// With its blocks linked to their definitions.
loaded_design LoadDesign(const std::string& path, const load_context& context);
// Of a file's text that someone else may have sent; without a word why it can't be read.
loaded_design LoadDesignText(std::string_view text, const load_context& context);

// The same of the file's content.
[[nodiscard]] loaded_design LoadDesign(std::string_view content, const std::string& path,
                                       const load_context& context);

// What is said of a design that was not loaded.
report LoadFailure(load_status status, const std::string& path);

}  // namespace mardel
