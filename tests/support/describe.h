// What the program is made of as lines of text.
#pragma once

#include <sstream>
#include <string>

#include "editor/snapshot.h"
#include "editor/undo.h"
#include "platform/menu.h"
#include "platform/ui.h"
#include "tests/support/recording_painter.h"
#include "tests/support/script.h"

namespace mardel {

inline std::string Line(const dvblock& block) {
  std::ostringstream out;
  out << "block " << block.id << " (" << block.x << ',' << block.y << ')';
  for (const param& each : block.params)
    out << ' ' << each.param_name.Text() << '=' << each.param_value;
  out << (block.selected ? " selected" : "");
  return out.str();
}

inline std::string Line(const net& wire) {
  std::ostringstream out;
  out << "net " << wire.net_id << ' ' << wire.id_1 << '.' << wire.pin_1_name << " to " << wire.id_2
      << '.' << wire.pin_2_name << ' '
      << Describe(line{{wire.x_1, wire.y_1}, {wire.x_2, wire.y_2}});
  if (wire.color != kNetColour) out << ' ' << Describe(wire.color);
  out << (wire.selected ? " selected" : "");
  return out.str();
}

inline std::string Line(const textblock& note) {
  std::ostringstream out;
  out << "note " << note.id << ' ' << Describe(rectangle{note.x, note.y, note.width, note.height})
      << ' ' << note.text_str << (note.selected ? " selected" : "");
  return out.str();
}

// Hands the record that a snapshot holds to `act`; false when there is none.
template <class action>
bool WithSnapshot(const std::string& xml, action act) {
  const auto read = [&](auto record) {
    const bool is_read = ReadSnapshot(xml, record);
    if (is_read) act(record);
    return is_read;
  };
  return read(dvblock()) || read(net()) || read(textblock());
}

// In order of their numbers: of blocks, nets and notes.
constexpr const char* kActionNames[] = {"placed", "changed", "deleted", "edited",
                                        "made",   "moved",   "deleted", "added",
                                        "edited", "moved",   "deleted"};

inline std::string Line(const undo_record& record) {
  std::string kept = "not a snapshot";
  WithSnapshot(record.undo_xml, [&](const auto& read) { kept = Line(read); });
  return "undo " + std::to_string(record.undo_group) + ' ' +
         std::visit([](auto action) { return kActionNames[static_cast<int>(action)]; },
                    record.undo_action) +
         ' ' + kept;
}

// A line for each branch: how many leaves it has, the first and the last.
inline std::string Describe(const std::vector<tree_item>& tree) {
  std::string text;
  for (std::size_t i = 0, end = 0; i < tree.size(); i = end) {
    end = i + 1;
    while (end < tree.size() && tree[end].level > 0) ++end;
    text += '\n' + tree[i].text + ": " + std::to_string(end - i - 1) + " from " + tree[i + 1].text +
            " to " + tree[end - 1].text;
  }
  return text;
}

inline std::string Line(const gadget& shown) {
  constexpr const char* kKinds[] = {"label",  "centred",        "caption", "field",
                                    "editor", "text",           "box",     "option",
                                    "button", "default button", "tree",    "image"};
  const bool is_logo = shown.text == ReadAll(MARDEL_SOURCE_DIR "/app/logo.png");
  std::string text = kKinds[static_cast<int>(shown.kind)] + (' ' + Describe(shown.place)) + " [" +
                     (is_logo ? "logo" : Replaced(shown.text, "\n", "\\n")) + ']';
  if (shown.id != 0) text += " #" + std::to_string(shown.id);
  if (shown.ink != 0) text += ' ' + Describe(shown.ink);
  if (!shown.tooltip.empty()) text += " tip " + shown.tooltip;
  if (shown.checked) text += " checked";
  return text + Describe(shown.items);
}

inline std::string Describe(const window& shown) {
  std::string text = shown.title + ' ' + std::to_string(shown.width) + 'x' +
                     std::to_string(shown.height) +
                     (shown.modality == window_modality::kModeless ? " modeless" : "");
  for (const gadget& each : shown.gadgets) text += '\n' + Line(each);
  return text;
}

// Of a submenu how many items it has, the first and the last.
inline std::string Describe(const std::vector<menu_item>& items) {
  static const char* const roles[] = {"", " about", " preferences", " quit"};
  std::string text;
  for (const menu_item& each : items) {
    text += "\n  ";
    if (each.kind == menu_item_kind::kSeparator) {
      text += "----";
    } else if (each.kind == menu_item_kind::kSubmenu) {
      text += each.text + ": " + std::to_string(each.items.size()) + " from " +
              each.items.front().text + " to " + each.items.back().text;
    } else {
      text += std::to_string(each.id) + ' ' + Replaced(each.text, "\t", "\\t") +
              (each.shortcut.empty() ? "" : " [" + each.shortcut + ']') +
              roles[static_cast<int>(each.role)] +
              (each.kind == menu_item_kind::kCheckable ? " checkable" : "");
    }
  }
  return text;
}

}  // namespace mardel
