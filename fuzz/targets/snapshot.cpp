// The undo stack's texts of single items, whole or made up.
#include "editor/snapshot.h"

#include "fuzz/target.h"
#include "platform/text.h"

namespace mardel {
namespace {

template <class record>
void Return(const record& written) {
  record read;
  Require(ReadSnapshot(WriteSnapshot(written), read), "a snapshot is read");
  Require(read == written, "a snapshot gives back every field");
}

template <class record>
void Read(std::string_view xml) {
  record into;
  into.x = 17;
  const record before = into;
  if (ReadSnapshot(xml, into)) {
    Return(into);
  } else {
    Require(into == before, "nothing changes when nothing is read");
  }
}

// `text` in every kind of field.
void Write(std::string_view part) {
  const std::string text(part);
  Return(textblock{.text_str = text});
  pin one;
  one.pin_name = one.pin_desc = text;
  param other;
  other.param_value = text;
  dvblock block;
  block.lib = block.sub = text;
  block.pins.push_back(one);
  block.params.assign(2, other);
  Return(block);
}

}  // namespace

void TryInput(std::string_view input) {
  Read<dvblock>(input);
  Read<textblock>(input);
  net wire;
  if (ReadSnapshot(input, wire)) Return(wire);
  Write(DropUnstorable(input));
}

}  // namespace mardel
