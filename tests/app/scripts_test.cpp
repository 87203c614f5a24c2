// Plays the scripts in tests/fixtures/scripts to the program, with a scripted user, recorded tools
// and a folder of its own.
#include <array>
#include <deque>

#include "app/about_box.h"
#include "app/event_handling.h"
#include "app/reports.h"
#include "app/startup.h"
#include "app/title.h"
#include "codegen/design_file.h"
#include "codegen/toolchain.h"
#include "editor/canvas_input.h"
#include "editor/drawn_extent.h"
#include "editor/edit_commands.h"
#include "editor/note_dialog.h"
#include "editor/selected_nets.h"
#include "editor/snapshot.h"
#include "tests/support/describe.h"
#include "tests/support/fixed_metrics.h"
#include "tests/support/fixed_moment.h"
#include "tests/support/scripted_host.h"
#include "tests/support/scripted_ui.h"
#include "tests/support/told_record.h"

namespace mardel {
namespace {

// 60 x 40. "UNDER" lies below "CV".
blockdef Amp() {
  return {.id = 0,
          .lib = "FX",
          .sub = "amp",
          .desc = "",
          .width = 60,
          .height = 40,
          .pins = {{0, "IN", "MREG", "L", "Input", 0, 20},
                   {1, "OUT", "MREG", "R", "Output", 54, 20},
                   {2, "CV", "CREG", "T", "Control", 27, 0},
                   {3, "UNDER", "MREG", "T", "Hidden", 27, 0},
                   {4, "LOW", "mreg", "B", "Lower case", 27, 34}},
          .params = {{5, "Gain", "", "1", ""}, {6, "Mode", "", "x", ""}, {7, "Gain", "", "2", ""}}};
}

net NetAcross(int x) {
  net wire;
  wire.x_1 = x;
  wire.y_2 = 5;
  return wire;
}

// Whether `call` goes on what `line` began; the line then tells of both.
bool Joins(std::string& line, const std::string& call) {
  if (line.starts_with("status 0 ") && call.starts_with("status 1 ")) {
    line = "status [" + line.substr(9) + '|' + call.substr(9);
  } else if (line.starts_with("status [") && call.starts_with("status 2 ")) {
    line += '|' + call.substr(9) + ']';
  } else if (line == "pointer normal" && call == "status 0 ") {
    line = "pointer normal, status [";
  } else if (line == "pointer normal, status [" && call == "status 1 ") {
    line += '|';
  } else if (line == "pointer normal, status [|" && call == "status 2 ") {
    line = "rest";
  } else if (line == "disable main window" && call.starts_with("open window ")) {
    line = call.substr(5);
  } else if (line.starts_with("close window ") && call == "enable main window") {
    line = "closed " + line.substr(13);
  } else {
    return false;
  }
  return true;
}

edit_action ActionOf(const std::string& name, const std::string& kind) {
  int number = kind == "block" ? 0 : kind == "net" ? 4 : 7;
  while (number < std::ssize(kActionNames) && name != kActionNames[number]) ++number;
  if (number == std::ssize(kActionNames)) throw unknown_word(name);
  if (number <= static_cast<int>(block_action::kEdited)) return block_action(number);
  if (number <= static_cast<int>(net_action::kDeleted)) return net_action(number);
  return note_action(number);
}

point Point(const std::string& word) {
  return {Number(word, ","), Number(word.substr(word.find(',') + 1))};
}

class program_player {
 public:
  // What a command leads to. "F/" is the folder, "TITLE " the prefix of the title; the reset before
  // a menu command is left out, and calls that always come together are one line.
  std::vector<std::string> Do(arguments words) {
    for (std::string& word : words) {
      if (word.starts_with("F/")) word.replace(0, 2, folder_.Path());
    }
    calls_.clear();
    Named(commands_, TakeFirst(words))(words);
    std::vector<std::string> lines;
    for (const std::string& call : calls_) {
      if (!lines.empty() && Joins(lines.back(), call)) continue;
      lines.push_back(Replaced(Replaced(call, folder_.Path(), "F/"), Title(""), "TITLE "));
      lines.back() = Replaced(lines.back(), "\r", "\\r");
    }
    return lines;
  }

 private:
  using a = const arguments&;

  void Start(const std::string& configuration) {
    WriteAll(folder_.Path() + "Mardel.con", configuration);
    ReadSettings(app_, {.kind = host_kind::kMac,
                        .folders = {.documents = "/d/", .applications = "/a/", .home = "/h/"},
                        .current_folder = folder_.Path()});
    ShowReports(desk_, FillLibraries(app_));
  }

  void Send(const event& happened) {
    if (!HandleEvent(app_, happened)) Show("ended");
  }
  void Mouse(mouse_action action, a words) { Send(canvas_mouse{action, Point(words[0])}); }
  void Use(int gadget) { Send(gadget_used{Window(), gadget}); }
  // The last one that is open.
  int Window() const { return desk_.windows.empty() ? 0 : desk_.windows.rbegin()->first; }

  void Choose(int id) {
    static const std::vector<std::string> reset{"pointer normal", "status 0 ", "status 1 ",
                                                "status 2 ", "redraw"};
    Send(menu_chosen{id});
    const auto end = calls_.begin() + static_cast<long>(std::min(calls_.size(), reset.size()));
    if (std::equal(reset.begin(), reset.end(), calls_.begin(), end)) {
      calls_.erase(calls_.begin(), end);
    }
  }

  void ChooseNamed(const std::string& name) {
    static const std::map<std::string, int menu_ids::*> ids{
        {"new", &menu_ids::new_design},
        {"open", &menu_ids::open},
        {"save", &menu_ids::save},
        {"save_as", &menu_ids::save_as},
        {"generate", &menu_ids::generate},
        {"location", &menu_ids::first_location},
        {"grid", &menu_ids::show_grid},
        {"note", &menu_ids::add_text},
        {"first", &menu_ids::first_library_id},
        {"last", &menu_ids::last_library_id},
        {"undo", &menu_ids::undo},
        {"directory", &menu_ids::block_directory},
        {"escape", &menu_ids::escape},
        {"configuration", &menu_ids::preferences},
        {"about", &menu_ids::about},
        {"quit", &menu_ids::quit}};
    const std::size_t plus = name.find('+');
    Choose(app_.ids.*Named(ids, name.substr(0, plus)) +
           (plus == std::string::npos ? 0 : Number(name.substr(plus))));
  }

  void Place(a words) {
    if (words.empty()) return PlaceBlock(work_, Amp());
    const auto found = app_.libraries.FindDefinitions(words[0], words[1]);
    Choose(app_.libraries.Definitions()[found.front()].id);
  }
  dvblock& AddBlock(point at) {
    const blockdef amp = Amp();
    return design_.blocks.Append({design_.next_block_id++, amp.lib, amp.sub, false, at.x, at.y,
                                  amp.width, amp.height, amp.pins, amp.params});
  }
  void AddNet(a words) {
    design_.nets.Append({.net_id = design_.next_net_id++,
                         .id_1 = Number(words[0]),
                         .pin_1_name = words[1],
                         .id_2 = Number(words[2]),
                         .pin_2_name = words[3]});
    for (const dvblock& block : design_.blocks) UpdateNetEnds(design_, block);
  }
  void AddNote(point at, const std::string& text) {
    MeasureNote(design_.texts.Append(
                    {.id = design_.next_text_id++, .text_str = text, .x = at.x, .y = at.y}),
                metrics_);
  }
  void Keep(a words, const std::string& xml) {
    work_.undo.records.push_back({work_.undo.group, ActionOf(words[0], words[1]), xml});
  }
  void Append(const dvblock& read) { design_.blocks.Append(read); }
  void Append(const net& read) { design_.nets.Append(read); }
  void Append(const textblock& read) { design_.texts.Append(read); }

  // Adds to the libraries of the program.
  template <class record>
  void Add(std::vector<record> library_records::* list, record added) {
    library_records all{app_.libraries.Libraries(), app_.libraries.Definitions(), {}};
    (all.*list).push_back(std::move(added));
    app_.libraries = library_set(std::move(all));
  }
  void SaveAt(const std::string& path) {
    const char* const names[] = {"written", "not created", "failed", "damaged"};
    Show(names[static_cast<int>(SaveDesign(design_, path))]);
  }

  void RunTools(a words) {
    app_.options = {.files_path = "",
                    .libraries_path = "/libs/",
                    .exec_path = "/bin tools/",
                    .asm_exe = "asm",
                    .pre_exe = "pre",
                    .dravik_i2c = "0x30"};
    for (std::size_t i = 3; i < words.size(); ++i) runner_.codes.push_back(Number(words[i]));
    const auto location = words[1] == "ram" ? std::nullopt : std::optional(Number(words[1]));
    const auto result = RunToolchain({words[2], run_option{Number(words[0])}, location},
                                     {app_.options, runner_, desk_});
    const char* const names[] = {"done", "failed", "not started"};
    Show(names[static_cast<int>(result)] + std::string(runner_.codes.size(), '+'));
  }

  void Show(const std::string& text) { calls_.push_back(text); }
  void ShowText(std::string text) {
    if (text.ends_with('\n')) text.pop_back();
    Show(text);
  }
  void ShowLine(const std::string& text) { Show(Replaced(text, "\n", "\\n")); }
  template <class action>
  void ForAll(action act) const {
    for (const dvblock& block : design_.blocks) act(block);
    for (const net& wire : design_.nets) act(wire);
    for (const textblock& note : design_.texts) act(note);
  }
  // Of the undo stack what is new since it was last shown.
  void ShowState() {
    ForAll([this](auto& each) { ShowLine(Line(each)); });
    for (const undo_record& record : work_.undo.records) {
      if (record.undo_group > last_group_) ShowLine(Line(record));
    }
    if (!work_.undo.records.empty()) last_group_ = work_.undo.records.back().undo_group;
    if (design_.unsaved_changes) Show("unsaved");
    if (design_.has_selection) Show("selection");
    if (!std::holds_alternative<resting>(work_.hand)) Show("busy");
  }
  void ShowFigures() {
    Show(std::to_string(design_.blocks.size()) + " blocks, " +
         std::to_string(work_.undo.records.size()) + " undo records, " +
         (design_.unsaved_changes ? "unsaved" : "saved") + ", next id " +
         std::to_string(design_.next_block_id) + ", file [" + design_.file_name + "], run option " +
         std::to_string(static_cast<int>(app_.options.run_opt)));
  }
  void ShowDrawing(grid lines) {
    recording_painter canvas;
    DrawDesign(canvas, design_, {app_.libraries, metrics_, lines});
    for (const std::string& shape : canvas.shapes) ShowLine(shape);
  }
  // Of the straight lines of each pen, in order of their first: how many, the first and the last.
  void ShowLines() {
    recording_painter canvas;
    DrawDesign(canvas, design_, {app_.libraries, metrics_, grid::kShown});
    std::vector<std::array<std::string, 3>> runs;  // pen, first, last
    std::map<std::string, int> counts;
    for (const std::string& shape : canvas.shapes) {
      if (!shape.starts_with("line ")) continue;
      const std::size_t end = shape.find(' ', 5);
      const std::string at = shape.substr(5, end - 5), pen = shape.substr(end + 1);
      if (++counts[pen] == 1) runs.push_back({pen, at, at});
      std::ranges::find(runs, pen, [](const auto& run) { return run[0]; })->at(2) = at;
    }
    for (const auto& [pen, first, last] : runs) {
      Show(std::to_string(counts[pen]) + " lines " + pen + " from " + first + " to " + last);
    }
  }
  void ShowExtent() {
    const auto reach = DrawnExtent(design_, {app_.libraries, metrics_, grid::kShown});
    std::ostringstream out;
    out.precision(19);
    if (!reach) return Show("nothing");
    out << reach->left << ' ' << reach->top << ' ' << reach->right << ' ' << reach->bottom;
    Show(out.str());
  }
  // Of all titles, or of the one that is named.
  void ShowMenus(a words) {
    static const std::map<std::string, host_kind> hosts{{"linux", host_kind::kLinux},
                                                        {"mac", host_kind::kMac}};
    for (const menu& each : MenuBar(Named(hosts, words[0]), MenuIds(26), {})) {
      if (words.size() == 1 || each.title == words[1]) Show(each.title + Describe(each.items));
    }
  }

  scratch_folder folder_;
  scripted_ui desk_;
  std::vector<std::string>& calls_ = desk_.calls;
  byte_metrics metrics_;
  scripted_runner runner_{calls_};
  program app_{{desk_, metrics_, runner_, FixedMoment}};
  workspace& work_ = app_.work;
  design& design_ = work_.document;
  std::int64_t last_group_ = -1;  // of the undo records that were shown

  const std::map<std::string, std::function<void(a)>> commands_ = {
      // The user.
      {"start", [this](a w) { Start(w[0]); }},
      {"choose", [this](a w) { ChooseNamed(w[0]); }},
      {"place", [this](a w) { Place(w); }},
      {"move", [this](a w) { Mouse(mouse_action::kMove, w); }},
      {"press", [this](a w) { Mouse(mouse_action::kLeftPress, w); }},
      {"release", [this](a w) { Mouse(mouse_action::kLeftRelease, w); }},
      {"right", [this](a w) { Mouse(mouse_action::kRightPress, w); }},
      {"key", [this](a w) { Send(canvas_key{Number(w[0])}); }},
      {"wheel", [this](a w) { Send(canvas_wheel{Point(w[0])}); }},
      {"double", [this](a w) { Mouse(mouse_action::kDoubleClick, w); }},
      {"arrow",
       [this](a w) { Send(canvas_arrow{Point(w[0]), w.back() == "shift", w.back() == "again"}); }},
      {"shortcut",
       [this](a w) {
         static const std::map<std::string, edit_shortcut> names{{"all", edit_shortcut::kSelectAll},
                                                                 {"cut", edit_shortcut::kCut},
                                                                 {"copy", edit_shortcut::kCopy},
                                                                 {"paste", edit_shortcut::kPaste}};
         Send(canvas_shortcut{Named(names, w[0])});
       }},
      {"drop", [this](a w) { Send(files_dropped{w}); }},
      {"clip", [this](a w) { desk_.clipboard = w[0]; }},
      {"interrupt", [this](a) { Send(canvas_interrupted{}); }},
      {"resize", [this](a) { Send(main_window_resized{}); }},
      {"close_main", [this](a) { Send(main_window_close_requested{}); }},
      {"close", [this](a w) { Send(window_close_requested{w.empty() ? Window() : Number(w[0])}); }},
      {"type", [this](a w) { desk_.typed[{Window(), Number(w[0])}] = w[1]; }},
      {"check", [this](a w) { desk_.checked[{Window(), Number(w[0])}] = true; }},
      {"select", [this](a w) { desk_.selected_items[{Window(), 1}] = Number(w[0]); }},
      {"use", [this](a w) { Use(Number(w[0])); }},
      {"ok", [this](a) { Use(1); }},
      {"cancel", [this](a) { Use(2); }},
      {"will_answer",
       [this](a w) {
         static const std::map<std::string, answer> names{
             {"yes", answer::kYes}, {"no", answer::kNo}, {"cancel", answer::kCancel}};
         desk_.answers.push_back(Named(names, w[0]));
       }},
      {"will_name", [this](a w) { desk_.paths.push_back(w[0]); }},
      // The program and its design.
      {"block", [this](a w) { AddBlock(Point(w[0])); }},
      {"bare", [this](a w) { AddBlock(Point(w[0])).params.clear(); }},
      {"net", [this](a w) { AddNet(w); }},
      {"times",
       [this](a w) {
         for (int n = Number(w[0]); n > 0; --n) Named(commands_, w[1])({w.begin() + 2, w.end()});
       }},
      {"nets",
       [this](a w) {
         for (int x = 0; x < Number(w[0]); ++x) design_.nets.Append(NetAcross(x));
       }},
      {"note", [this](a w) { AddNote(Point(w[0]), w[1]); }},
      {"have", [this](a w) { WithRecord(w, [this](const auto& told) { Append(told); }); }},
      {"record",
       [this](a w) {
         WithRecord({w.begin() + 1, w.end()},
                    [&](const auto& told) { Keep(w, WriteSnapshot(told)); });
       }},
      {"unreadable", [this](a w) { Keep(w, w[2]); }},
      {"library",
       [this](a w) {
         Add(&library_records::libraries, {w[0], w[1], Rgba(1, 2, 3, 0), Rgba(4, 5, 6, 0)});
       }},
      {"define",
       [this](a w) {
         Add(&library_records::definitions, {.lib = w[0], .sub = w[1], .desc = w[2]});
       }},
      {"save", [this](a w) { SaveAt(w[0]); }},
      {"name", [this](a w) { design_.file_name = w[0]; }},
      {"clear", [this](a) { ClearDesign(design_); }},
      {"reset", [this](a) { ResetInteraction(work_); }},
      {"undo", [this](a) { Undo(work_); }},
      {"add", [this](a) { OpenAddNote(work_); }},
      {"follow", [this](a w) { UpdateNetEnds(design_, *FindBlock(design_, Number(w[0]))); }},
      {"follow_selection", [this](a) { UpdateNetEndsOfSelection(design_); }},
      {"fill_disk", [](a) { LimitFiles(0); }},
      {"free_disk", [](a) { LimitFiles(RLIM_INFINITY); }},
      {"tools", [this](a w) { RunTools(w); }},
      // What is shown of them.
      {"show", [this](a) { ShowState(); }},
      {"show_net", [this](a w) { Show(Line(*std::next(design_.nets.begin(), Number(w[0])))); }},
      {"figures", [this](a) { ShowFigures(); }},
      {"window", [this](a) { Show(Describe(desk_.windows.at(Window()))); }},
      {"menus", [this](a w) { ShowMenus(w); }},
      {"about", [this](a w) { Show(Describe(AboutWindow(Number(w[0]), w[1]))); }},
      {"draw", [this](a w) { ShowDrawing(w.empty() ? grid::kHidden : grid::kShown); }},
      {"lines", [this](a) { ShowLines(); }},
      {"extent", [this](a) { ShowExtent(); }},
      {"extent_of",
       [this](a w) {
         ClearDesign(design_);
         WithRecord(w, [this](const auto& told) { Append(told); });
         ShowExtent();
       }},
      {"type_of", [this](a w) { Show('[' + PinType(design_, Number(w[0]), w[1]) + ']'); }},
      {"read", [this](a w) { ShowText(ReadAll(w[0])); }},
  };
};

const bool kRegistered = RegisterScripts<program_player>("Scripts", "scripts");

}  // namespace
}  // namespace mardel
