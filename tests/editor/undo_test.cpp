#include "editor/undo.h"

#include <gtest/gtest.h>

#include <tuple>

#include "editor/snapshot.h"

namespace mardel {
namespace {

using action = undo_action;

// Every field differs from its default and from its neighbours.
dvblock Block(std::int64_t id, const std::string& text = "") {
  dvblock block{id, text + "lib", text + "sub", true, INT64_MAX, INT64_MIN, 80, 40, {}, {}};
  block.pins = {{1, text, text + "t", "L" + text, text + "d", -3, 17}, {}};
  block.params = {{2, text + "n", text, text + "v", "d" + text}, {}};
  return block;
}
net Net(std::int64_t net_id, std::int64_t id_1, std::int64_t id_2, const std::string& text = "") {
  return {net_id, kNetColour, false, id_1, 5, text + "a", 1, 2, id_2, 6, text + "b", 3, 4};
}
textblock Note(std::int64_t id, const std::string& text = "") {
  return {id, false, text, 1, 2, INT64_MIN, 18};
}

struct session {
  design d;
  undo_stack undo;

  session() {
    d.blocks.Append(Block(1));
    d.nets.Append(Net(0, 1, 1));
    d.texts.Append(Note(2));
  }
  undo_result Undo() { return UndoLastGroup(undo, d); }
};

TEST(Undo, LeavesTheSelectionFlagToTheRecordRestoredLast) {
  const std::tuple<action, std::int64_t, bool, bool> cases[] = {
      {action::kBlockChanged, 1, true, true}, {action::kBlockChanged, 1, false, false},
      {action::kBlockDeleted, 7, true, true}, {action::kBlockDeleted, 7, false, false},
      {action::kBlockEdited, 7, true, false}, {action::kBlockPlaced, 1, true, false}};
  for (const auto& [how, id, selected, flag] : cases) {
    session s;
    dvblock block = Block(id);
    block.selected = selected;
    PushBlock(s.undo, block, how);
    s.d.texts.Last().selected = true;
    PushNote(s.undo, s.d.texts.Last(), action::kNoteMoved);
    s.Undo();
    EXPECT_EQ(s.d.has_selection, flag) << static_cast<int>(how) << ' ' << id << ' ' << selected;
  }
}

TEST(Undo, SkipsRecordsThatItCannotRead) {
  session s;
  s.undo.records = {{0, action::kBlockPlaced, "<dvblock><id>1</id>"},
                    {0, action::kNetDeleted, ""},
                    {0, action::kNoteMoved, "\x01"},
                    {0, static_cast<action>(11), WriteSnapshot(Block(1))}};
  EXPECT_EQ(s.Undo(), undo_result::kRestored);
  EXPECT_EQ(*s.d.blocks.begin(), Block(1));
  EXPECT_EQ(s.d.blocks.size() + s.d.nets.size() + s.d.texts.size(), 3U);
}

TEST(Snapshot, GivesBackEveryField) {
  for (const char* const text : {"", "  a \t\r\n\r\r\n\n ", "]]>&amp;<b>\"'&#13;",
                                 "\u00E9\U0001F3B5", "<!-- --><![CDATA[x]]>\t"}) {
    net lit = Net(INT64_MAX, INT64_MIN, 0, text);
    lit.selected = true;
    lit.color = Rgba(255, 254, 253, 252);
    dvblock block = Block(1);
    net wire;
    textblock note;
    EXPECT_TRUE(ReadSnapshot(WriteSnapshot(Block(INT64_MIN, text)), block));
    EXPECT_TRUE(ReadSnapshot(WriteSnapshot(lit), wire));
    EXPECT_TRUE(ReadSnapshot(WriteSnapshot(Note(INT64_MAX, text)), note));
    EXPECT_EQ(block, Block(INT64_MIN, text));
    EXPECT_EQ(wire, lit);
    EXPECT_EQ(note, Note(INT64_MAX, text));
  }
  EXPECT_EQ(WriteSnapshot(textblock{1, true, "a<b\r", 2, 3, 4, 5}),
            "<textblock><id>1</id><selected>1</selected><text_str>a&lt;b&#13;</text_str><x>2</x>"
            "<y>3</y><width>4</width><height>5</height></textblock>");
}

}  // namespace
}  // namespace mardel
