// The design that the user edits: placed blocks, the nets between their pins, and text notes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "editor/cursor_list.h"
#include "library/records.h"
#include "platform/geometry.h"
#include "platform/painter.h"

namespace mardel {

struct dvblock {
  std::int64_t id = 0;
  std::string lib;  // with `sub` all that ties the block to its definition
  std::string sub;  // drawn as its label
  bool selected = false;
  std::int64_t x = 0, y = 0, width = 0, height = 0;
  std::vector<pin> pins;
  std::vector<param> params;
  bool operator==(const dvblock&) const = default;
};

constexpr colour kNetColour = Rgba(102, 0, 102);
constexpr double kNetWidth = 2.0;  // as it is drawn

struct net {
  std::int64_t net_id = 0;
  colour color = kNetColour;
  bool selected = false;
  // The end where the wire was begun. The end points are raw mouse points until a block is moved.
  std::int64_t id_1 = 0, pin_1_num = 0;
  std::string pin_1_name;
  std::int64_t x_1 = 0, y_1 = 0;
  std::int64_t id_2 = 0, pin_2_num = 0;
  std::string pin_2_name;
  std::int64_t x_2 = 0, y_2 = 0;
  bool operator==(const net&) const = default;
};

struct textblock {
  std::int64_t id = 0;
  bool selected = false;
  std::string text_str;
  std::int64_t x = 0, y = 0, width = 0, height = 0;
  bool operator==(const textblock&) const = default;
};

// List order is drawing order, the last on top; hits are searched from the last.
struct design {
  cursor_list<dvblock> blocks;
  cursor_list<net> nets;
  cursor_list<textblock> texts;
  // The ids that the next new ones get; never reused while the program runs.
  std::int64_t next_block_id = 0, next_net_id = 0, next_text_id = 0;
  bool unsaved_changes = false;
  std::string file_name;  // path last loaded or saved; "" for a new design
  bool has_selection = false;
};

// Null when there is none; the first in list order when ids repeat, as a file may have them.
dvblock* FindBlock(design& document, std::int64_t id);
const dvblock* FindBlock(const design& document, std::int64_t id);

// "" when the block or the pin is missing.
std::string PinType(const design& document, std::int64_t block_id, std::string_view pin_name);

point PinCentre(const dvblock& block, const pin& of);
bool Touches(const net& wire, std::int64_t block_id);

// Puts each end of the net that lies on a pin of the block at the centre of that pin.
void UpdateNetEnds(net& wire, const dvblock& block);
// The same for every net.
void UpdateNetEnds(design& document, const dvblock& block);

// Unselects all blocks and notes, with the selection flag; nets keep their highlight.
void ClearSelection(design& document);

// Empties the lists; the ids start at 0 again.
void ClearDesign(design& document);

// A note is drawn in a box of this width and at most this height.
constexpr std::int64_t kNoteBox = 999;
static_assert(kNoteBox <= kTallestParagraph);

// In canvas pixels, unrounded, when the text is wrapped at `width`.
double NoteHeight(std::string_view text, std::int64_t width, const text_metrics& metrics);

// Sets width and height of a note from its text: as wide as its widest line with a margin.
void MeasureNote(textblock& note, const text_metrics& metrics);

}  // namespace mardel
