// Designs as their files have them, before and after libraries say anything about them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "codegen/design_file.h"

namespace mardel {

struct raw_design {
  design document;
  std::string root_name;
  bool has_lists = false;  // at least one of blocks, nets and text
  // Of the start tags of blocks and nets in list order, in bytes from the file's start.
  std::vector<std::size_t> block_offsets = {}, net_offsets = {};
};

// Into an empty one. Unknown elements are skipped; of repeated ones the last value holds.
// kNotLoaded when the records would take more memory than 16 times the file, and more than a
// little; what was read until then is worth nothing. `line_separator` is that of notes.
[[nodiscard]] load_status ReadRawDesign(raw_design& raw, std::string_view bytes,
                                        std::string_view line_separator);

struct [[nodiscard]] relinking {
  std::vector<report> missing;  // of each block that was removed, since no library has it
  std::vector<net> removed;     // the nets that went with them
};

// Gives the blocks what their definitions say, the nets their end points and the notes their sizes,
// and sets the next ids past those in use. Blocks without a definition are removed with their nets.
relinking RelinkDesign(design& document, const load_context& context);

}  // namespace mardel
