// What changed from one design to another, in words.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "codegen/compare/design_match.h"

namespace mardel {

enum class change_kind { kAdded, kRemoved, kMoved, kChanged };

// A change of one block, one wire or one note: of these pairs one has records.
struct design_change {
  change_kind kind = change_kind::kChanged;
  matched<dvblock> block = {};
  matched<net> wire = {};
  matched<textblock> note = {};
  std::string subject = {};  // names the record as the old design has it, if it does
  std::string field = {};    // of kChanged: which value
  // Of kMoved and kChanged; nothing where there is no such value.
  std::optional<std::string> from = {}, to = {};
};

// In an order of their own, which does not depend on the designs' orders and ids: blocks, wires and
// notes, each by place. Nothing when the designs are the same in all but order and ids.
std::vector<design_change> DiffDesigns(const design& old_one, const design& new_one);

// "block", "wire" or "note"
std::string_view KindWord(const design_change& of);

// "added block Gain of effects at 10, 20 with level "0.5"", in one line without its end.
std::string ChangeText(const design_change& change);

// "block Gain of effects at 10, 20"
std::string BlockWords(const dvblock& block);

// "wire from Gain at 10, 20 pin out to MR7 at 90, 20 pin OUT", the ends by place.
std::string WireWords(const net& wire, const blocks_by_id& blocks);

// "note "text" at 10, 20"
std::string NoteWords(const textblock& note);

}  // namespace mardel
