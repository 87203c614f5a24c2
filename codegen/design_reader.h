// The two halves of LoadDesign.
#pragma once

#include "codegen/design_file.h"
#include "platform/xml.h"

namespace mardel {

// Appends what the tree holds. Unknown elements are skipped; of repeated ones the last value holds.
// False when the records would take more memory than 16 times the file, and more than a little.
[[nodiscard]] bool ReadDesign(design& document, const xml_tree& tree,
                              std::string_view line_separator);

// Gives the blocks what their definitions say, the nets their end points and the notes their sizes,
// and sets the next ids past those in use. Blocks without a definition are removed with their nets
// and reported.
[[nodiscard]] std::vector<report> RelinkDesign(design& document, const load_context& context);

}  // namespace mardel
