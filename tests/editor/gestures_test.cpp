// Plays the files in tests/fixtures/gestures: each unindented line is a command, the indented lines
// below it are all that it is to bring about.
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <sstream>

#include "editor/snapshot.h"
#include "tests/editor/workbench.h"
#include "tests/support/files.h"

namespace mardel {
namespace {

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size()) {
    text.replace(at, from.size(), to);
  }
  return text;
}

std::string Line(const dvblock& block) {
  std::ostringstream out;
  out << "block " << block.id << " (" << block.x << ',' << block.y << ')';
  for (const param& each : block.params) out << ' ' << each.param_name << '=' << each.param_value;
  out << (block.selected ? " selected" : "");
  return out.str();
}
std::string Line(const net& wire) {
  std::ostringstream out;
  out << "net " << wire.net_id << ' ' << wire.id_1 << '.' << wire.pin_1_name << " to " << wire.id_2
      << '.' << wire.pin_2_name << ' '
      << Describe(line{{wire.x_1, wire.y_1}, {wire.x_2, wire.y_2}});
  if (wire.color != kNetColour) out << ' ' << Describe(wire.color);
  out << (wire.selected ? " selected" : "");
  return out.str();
}
std::string Line(const textblock& note) {
  std::ostringstream out;
  out << "note " << note.id << ' ' << Describe(rectangle{note.x, note.y, note.width, note.height})
      << ' ' << Replaced(note.text_str, "\n", "\\n") << (note.selected ? " selected" : "");
  return out.str();
}
std::string Line(const gadget& shown) {
  constexpr const char* kKinds[] = {"label", "?",   "caption", "field",  "editor",
                                    "?",     "box", "?",       "button", "default button"};
  std::string text = kKinds[static_cast<int>(shown.kind)] + (' ' + Describe(shown.place)) + " [" +
                     Replaced(shown.text, "\n", "\\n") + ']';
  if (shown.id != 0) text += " #" + std::to_string(shown.id);
  if (shown.ink != 0) text += ' ' + Describe(shown.ink);
  return text + (shown.checked ? " checked" : "");
}

template <class T>
std::string SnapshotLine(const std::string& xml) {
  T record;
  return ReadSnapshot(xml, record) ? Line(record) : "not a snapshot";
}
std::string Line(const undo_record& record) {
  return "undo " + std::to_string(record.undo_group) + " action " +
         std::to_string(static_cast<int>(record.action)) + ' ' +
         (record.undo_xml.starts_with("<dvblock>") ? SnapshotLine<dvblock>(record.undo_xml)
          : record.undo_xml.starts_with("<net>")   ? SnapshotLine<net>(record.undo_xml)
                                                   : SnapshotLine<textblock>(record.undo_xml));
}

class player : public workbench {
 public:
  // All of the file's commands and what they brought about.
  std::string Play(const std::string& script) {
    std::istringstream in(script);
    std::ostringstream out;
    for (std::string command; std::getline(in, command);) {
      if (command.starts_with("  ")) continue;
      out << command << '\n';
      if (command.empty() || command.starts_with('#')) continue;
      Do(command);
      for (const std::string& call : FoldedCalls()) out << "  " << call << '\n';
      desk.calls.clear();
    }
    return out.str();
  }

 private:
  // A name, a number or a point, and text.
  void Do(const std::string& command) {
    std::istringstream in(command);
    std::string name, rest;
    point at;
    in >> name >> at.x;
    if (in.peek() == ',') in.ignore() >> at.y;
    std::getline(in >> std::ws, rest);
    commands_.at(name)(at, Replaced(rest, "\\n", "\n"));
  }

  // The three fields of the status bar in their order become one line.
  std::vector<std::string> FoldedCalls() const {
    std::vector<std::string> lines;
    for (const std::string& call : desk.calls) {
      const bool is_open =
          !lines.empty() && lines.back().starts_with("status [") && !lines.back().ends_with(']');
      if (call.starts_with("status 0 ")) {
        lines.push_back("status [" + call.substr(9));
      } else if (is_open && call.starts_with("status ")) {
        lines.back() += '|' + call.substr(9) + (call[7] == '2' ? "]" : "");
      } else {
        lines.push_back(call);
      }
    }
    return lines;
  }

  void ShowState() {
    std::vector<std::string>& shown = desk.calls;
    for (const dvblock& block : document.blocks) shown.push_back(Line(block));
    for (const net& wire : document.nets) shown.push_back(Line(wire));
    for (const textblock& note : document.texts) shown.push_back(Line(note));
    for (const undo_record& record : work.undo.records) shown.push_back(Line(record));
    if (document.unsaved_changes) shown.emplace_back("unsaved");
    if (document.has_selection) shown.emplace_back("selection");
    if (work.hand.mode != drag_mode::kNone || work.hand.wire_start) shown.emplace_back("busy");
  }
  void ShowWindow() {
    const window& open = desk.windows.at(work.dialog.number);
    desk.calls.push_back(open.title + ' ' + std::to_string(open.width) + 'x' +
                         std::to_string(open.height));
    for (const gadget& each : open.gadgets) desk.calls.push_back(Line(each));
  }

  void ReadNet(std::int64_t id_1, const std::string& rest) {
    std::istringstream in(rest);
    std::int64_t id_2 = 0;
    std::string pin_1, pin_2;
    in >> pin_1 >> id_2 >> pin_2;
    AddNet(id_1, pin_1, id_2, pin_2);
  }
  std::pair<int, int> Gadget(point at) const {
    return {work.dialog.number, static_cast<int>(at.x)};
  }

  using text = const std::string&;
  const std::map<std::string, std::function<void(point, text)>> commands_ = {
      {"block", [this](point at, text) { AddBlock(at); }},
      {"bare", [this](point at, text) { AddBlock(at).params.clear(); }},
      {"net", [this](point at, text rest) { ReadNet(at.x, rest); }},
      {"note", [this](point at, text note) { AddNote(at, note); }},
      {"move", [this](point at, text) { Mouse(mouse_action::kMove, at); }},
      {"press", [this](point at, text) { Mouse(mouse_action::kLeftPress, at); }},
      {"release", [this](point at, text) { Mouse(mouse_action::kLeftRelease, at); }},
      {"right", [this](point at, text) { Mouse(mouse_action::kRightPress, at); }},
      {"key", [this](point at, text) { HandleKey(work, outside, {static_cast<int>(at.x)}); }},
      {"wheel", [this](point at, text) { HandleWheel(outside, {static_cast<int>(at.x)}); }},
      {"interrupt", [this](point, text) { HandleInterruption(work, outside); }},
      {"reset", [this](point, text) { ResetInteraction(work, outside); }},
      {"undo", [this](point, text) { Undo(work, outside); }},
      {"place", [this](point, text) { PlaceBlock(work, outside, Amp()); }},
      {"add", [this](point, text) { OpenAddNote(work, outside); }},
      {"type", [this](point at, text typed) { desk.typed[Gadget(at)] = typed; }},
      {"check", [this](point at, text) { desk.checked[Gadget(at)] = true; }},
      {"use", [this](point at, text) { Use(static_cast<int>(at.x)); }},
      {"ok", [this](point, text) { Use(1); }},
      {"cancel", [this](point, text) { Use(2); }},
      {"close", [this](point, text) { CancelDialog(work, outside); }},
      {"window", [this](point, text) { ShowWindow(); }},
      {"show", [this](point, text) { ShowState(); }},
  };
};

TEST(Gestures, DoWhatTheirFilesSay) {
  for (const auto& file : Fixtures("gestures")) {
    SCOPED_TRACE(file.filename());
    const std::string script = ReadAll(file);
    EXPECT_EQ(player().Play(script), script);
  }
}

}  // namespace
}  // namespace mardel
