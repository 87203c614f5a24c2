// Replays the scripts in tests/fixtures/events. A script's first line is the configuration file; a
// line "> " is what the user does, what follows it are the calls that it leads to. "F/" is the
// session's folder, "TITLE " the prefix of the title, and the reset before each menu command is
// left out. Lines "< " answer the next question or requester.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <functional>
#include <map>
#include <sstream>

#include "app/file_commands.h"
#include "app/title.h"
#include "tests/app/describe_window.h"
#include "tests/app/session.h"

namespace mardel {
namespace {

std::string State(const program& app) {
  const design& document = app.work.document;
  std::ostringstream out;
  out << document.blocks.size() << " blocks, " << app.work.undo.records.size() << " undo records, "
      << (document.unsaved_changes ? "unsaved" : "saved") << ", next id " << document.next_block_id
      << ", file [" << document.file_name << "], run option " << app.options.run_opt;
  return out.str();
}

void ReplaceAll(std::string& text, const std::string& from, const std::string& to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size()) {
    text.replace(at, from.size(), to);
  }
}

class replay {
 public:
  std::string Run(const std::string& script) {
    std::istringstream lines(script);
    std::string line;
    std::getline(lines, line);
    session_.Start(line);
    transcript_ = line + "\n";
    while (std::getline(lines, line)) {
      if (line.starts_with("< ")) Answer(line.substr(2));
      if (line.starts_with("> ")) Act(line.substr(2));
      if (line.starts_with("< ") || line.empty()) transcript_ += line + "\n";
    }
    ReplaceAll(transcript_, session_.folder.Path(), "F/");
    ReplaceAll(transcript_, Title(""), "TITLE ");
    return transcript_;
  }

 private:
  void Answer(const std::string& line) {
    static const std::map<std::string, answer> answers{
        {"yes", answer::kYes}, {"no", answer::kNo}, {"cancel", answer::kCancel}};
    if (answers.contains(line)) return session_.desk.answers.push_back(answers.at(line));
    std::string path = line == "nothing" ? "" : line;
    if (path.starts_with("F/")) path.replace(0, 2, session_.folder.Path());
    session_.desk.paths.push_back(path);
  }

  void Act(const std::string& line) {
    transcript_ += "> " + line + "\n";
    std::istringstream words(line);
    const std::string verb = Next(words);
    session_.desk.calls.clear();
    actions_.at(verb)(words);
    for (const std::string& call : session_.desk.calls) transcript_ += call + "\n";
  }

  void Send(const event& happened) {
    if (!HandleEvent(session_.app, happened)) session_.desk.calls.emplace_back("ended");
  }

  void Choose(int id) {
    static const std::vector<std::string> reset{"pointer normal", "status 0 ", "status 1 ",
                                                "status 2 ", "redraw"};
    Send(menu_chosen{id});
    std::vector<std::string>& calls = session_.desk.calls;
    const auto end = calls.begin() + static_cast<long>(std::min(calls.size(), reset.size()));
    if (std::equal(reset.begin(), reset.end(), calls.begin(), end)) calls.erase(calls.begin(), end);
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
    Choose(session_.app.ids.*ids.at(name.substr(0, plus)) +
           (plus == std::string::npos ? 0 : std::stoi(name.substr(plus))));
  }

  void Read(const std::string& path) {
    std::string text = ReadAll(path);
    if (text.ends_with('\n')) text.pop_back();
    Show(text);
  }

  // No file grows while the disk is full.
  static void LimitFiles(rlim_t bytes) {
    rlimit limits{};
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &limits);
    limits.rlim_cur = std::min(bytes, limits.rlim_max);
    setrlimit(RLIMIT_FSIZE, &limits);
  }

  void Show(const std::string& text) { session_.desk.calls.push_back(text); }

  const std::map<std::string, std::function<void(std::istringstream&)>> actions_{
      {"choose", [this](std::istringstream& w) { ChooseNamed(Next(w)); }},
      {"place",
       [this](std::istringstream& w) {
         const library_set& set = session_.app.libraries;
         const std::string lib = Next(w);
         Choose(set.Definitions()[set.FindDefinitions(lib, Next(w)).front()].id);
       }},
      {"close", [this](std::istringstream& w) { Send(window_close_requested{Number(w)}); }},
      {"close_main", [this](std::istringstream&) { Send(main_window_close_requested{}); }},
      {"resize", [this](std::istringstream&) { Send(main_window_resized{}); }},
      {"press",
       [this](std::istringstream& w) {
         Send(gadget_used{1, Number(w)});
       }},
      {"type",
       [this](std::istringstream& w) {
         const int field = Number(w);
         session_.desk.typed[{1, field}] = Next(w);
       }},
      {"name", [this](std::istringstream& w) { session_.app.work.document.file_name = Next(w); }},
      {"fill_disk", [](std::istringstream&) { LimitFiles(0); }},
      {"free_disk", [](std::istringstream&) { LimitFiles(RLIM_INFINITY); }},
      {"wire",
       [this](std::istringstream&) {
         session_.app.work.hand.mode = drag_mode::kWire;
         session_.app.work.document.has_selection = true;
         session_.app.work.document.blocks.begin()->selected = true;
       }},
      {"hand",
       [this](std::istringstream&) {
         const workspace& work = session_.app.work;
         Show(std::to_string(static_cast<int>(work.hand.mode)) +
              (work.document.has_selection ? " flag" : " no flag") +
              (work.document.blocks.begin()->selected ? " selected" : " not selected"));
       }},
      {"state", [this](std::istringstream&) { Show(State(session_.app)); }},
      {"window",
       [this](std::istringstream& w) { Show(Describe(session_.desk.windows.at(Number(w)))); }},
      {"read", [this](std::istringstream& w) { Read(session_.folder.Path() + Next(w)); }},
  };

  static std::string Next(std::istringstream& w) {
    std::string word;
    w >> word;
    return word;
  }
  static int Number(std::istringstream& w) { return std::stoi(Next(w)); }

  session session_;
  std::string transcript_;
};

TEST(Events, LeadToTheseCalls) {
  for (const auto& script : Fixtures("events")) {
    SCOPED_TRACE(script);
    EXPECT_EQ(replay().Run(ReadAll(script)), ReadAll(script));
  }
}

TEST(Events, EveryLibraryIdPlacesItsBlockOrNothing) {
  session run;
  run.Start("<c><expert_mode/></c>");
  const menu_ids& ids = run.app.ids;
  for (int id = ids.first_library_id; id <= ids.last_library_id; ++id) {
    EXPECT_TRUE(HandleEvent(run.app, menu_chosen{id}));
  }
  std::vector<std::string> placed;
  for (const dvblock& block : run.app.work.document.blocks) placed.push_back(block.sub);
  std::vector<std::string> defined;
  for (const blockdef& block : run.app.libraries.Definitions()) defined.push_back(block.sub);
  EXPECT_EQ(placed, defined);
  EXPECT_EQ(ids.block_directory, ids.last_library_id + 1);
}

TEST(FileCommands, LineSeparatorFollowsTheSystemFamily) {
  EXPECT_EQ(LineSeparator("Apple Mac"), "\n");
  EXPECT_EQ(LineSeparator("Linux"), "\n");
  EXPECT_EQ(LineSeparator("Windows"), "\r\n");
  EXPECT_EQ(LineSeparator("Your guess is as good as mine"), "\r\n");
}

}  // namespace
}  // namespace mardel
