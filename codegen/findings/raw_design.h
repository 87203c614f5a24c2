// A design as its file has it, before libraries say anything about it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "editor/design.h"

namespace mardel {

struct raw_design {
  design document;
  std::string root_name;
  bool has_lists = false;  // at least one of blocks, nets and text
  // Of the start tags of blocks, nets and notes in list order, in bytes from the file's start.
  std::vector<std::size_t> block_offsets = {}, net_offsets = {}, note_offsets = {};
};

// Nothing when the bytes are no XML or too much for a design. `line_separator` is that of notes.
std::optional<raw_design> ReadRawDesign(std::string_view bytes, std::string_view line_separator);

// Which line, from 1, each of the ascending offsets lies on.
std::vector<std::int64_t> LinesOf(std::string_view bytes, const std::vector<std::size_t>& offsets);

}  // namespace mardel
