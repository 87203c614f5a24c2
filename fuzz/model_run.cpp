// model_run COUNT [SEED]: sends at least COUNT events of a wild hand to the program's own event
// function, and compares its design with the reference after each. Prints figures, or where the two
// differ first.
#include <sys/resource.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

#include "app/configuration.h"
#include "app/event_handling.h"
#include "app/reports.h"
#include "app/startup.h"
#include "codegen/design_file.h"
#include "fuzz/kit.h"
#include "fuzz/reference.h"
#include "fuzz/wild_hand.h"
#include "fuzz/wild_tools.h"
#include "fuzz/wild_ui.h"
#include "platform/xml.h"
#include "tests/support/files.h"
#include "tests/support/fixed_metrics.h"
#include "tests/support/fixed_moment.h"

namespace mardel {
namespace {

constexpr int kEventsOfASession = 1500;

constexpr const char* kStrange = R"(<MardelDesign><blocks>
<dvblock><id>3</id><lib>Kit</lib><sub>Amp</sub><x>9000000000</x><y>-4</y>
<pins><pin><name>In</name><number>1</number></pin><pin><name>Out</name><number>3</number></pin></pins></dvblock>
<dvblock><id>7</id><lib>Gone</lib><sub>Amp</sub></dvblock>
<dvblock><id>8</id><lib>MREG</lib><sub>MR3</sub><x>40</x><y>50</y><pins><pin><name>OUT</name></pin></pins>
<params><param><name>Preset</name><value>5</value></param></params></dvblock></blocks>
<nets><net><net_id>5</net_id><id_1>8</id_1><pin_1_name>OUT</pin_1_name><id_2>3</id_2><pin_2_name>In</pin_2_name></net>
<net><net_id>6</net_id><id_1>7</id_1><pin_1_name>Out</pin_1_name><id_2>3</id_2><pin_2_name>In</pin_2_name></net></nets>
<text><text_item><text_id>2</text_id><x>100</x><y>200</y><text_str>one&#13;
two</text_str></text_item></text></MardelDesign>)";

struct figures {
  int events = 0, sessions = 0, nets_made = 0, undone = 0, to_the_bottom = 0, saves = 0,
      opened_again = 0, kept = 0, configured = 0;
};

class fault : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

void Expect(bool holds, const std::string& promise) {
  if (!holds) throw fault(promise);
}

template <class record>
bool AreUnique(const cursor_list<record>& list, std::int64_t record::* id, std::int64_t next_id) {
  std::vector<std::int64_t> ids;
  for (const record& each : list) ids.push_back(each.*id);
  std::ranges::sort(ids);
  return std::ranges::adjacent_find(ids) == ids.end() && (ids.empty() || ids.back() < next_id);
}

// On the pin that it names, wherever in its square.
bool LiesOnPin(const design& document, std::int64_t id, const std::string& name, point at) {
  const dvblock* block = FindBlock(document, id);
  return block != nullptr && std::ranges::any_of(block->pins, [&](const pin& p) {
           const point corner{block->x + p.pin_x, block->y + p.pin_y};
           return p.pin_name == name && corner.x <= at.x && at.x < corner.x + kPinSize &&
                  corner.y <= at.y && at.y < corner.y + kPinSize;
         });
}

// As it would be saved, but with its lists in the order of ids.
std::string SortedText(const design& document) {
  design sorted;
  for (const dvblock& each : document.blocks) sorted.blocks.Append(each);
  for (const net& each : document.nets) sorted.nets.Append(each);
  for (const textblock& each : document.texts) sorted.texts.Append(each);
  sorted.blocks.SortStably([](const dvblock& a, const dvblock& b) { return a.id < b.id; });
  sorted.nets.SortStably([](const net& a, const net& b) { return a.net_id < b.net_id; });
  sorted.texts.SortStably([](const textblock& a, const textblock& b) { return a.id < b.id; });
  return DesignText(sorted);
}

// Compares, or in any order adopts.
template <class record>
void Compare(const cursor_list<record>& program, std::vector<record>& reference,
             std::int64_t record::* id, bool in_any_order) {
  std::vector<record> all(program.begin(), program.end());
  if (in_any_order) {
    std::vector<record> sorted = all;
    std::ranges::sort(sorted, {}, id);
    std::ranges::sort(reference, {}, id);
    Expect(sorted == reference, "undo restores what the reference restores");
    reference = std::move(all);
    return;
  }
  Expect(all == reference, "the design is that of the reference");
}

class session {
 public:
  session(unsigned seed, figures& count)
      : random_(seed), desk_(random_), tools_(random_), count_(count) {
    kept_[In("Mardel.con")] = "<c><libraries_path>" + folder_.Path() + "</libraries_path></c>";
    WriteAll(In("Mardel.con"), kept_[In("Mardel.con")]);
    WriteAll(In("kit.dvl"), kKit);
    WriteAll(In("strange.mrd"), kStrange);
    WriteAll(In("broken.mrd"), "<MardelDesign><blocks>");
    desk_.paths = {"",          In("a.mrd"),      In("b.mrd"), In("a.mrd"), In("strange.mrd"),
                   In("c.dvc"), In("broken.mrd"), In("none/x")};
    ReadSettings(app_,
                 {.kind = host_kind::kLinux, .folders = {}, .current_folder = folder_.Path()});
    ShowReports(desk_, FillLibraries(app_));
    model_.disk.missing_folder = In("none/");
    model_.disk.files[In("strange.mrd")] = {reference_file::content::kStrangeDesign, {}, 1};
    model_.disk.files[In("broken.mrd")] = {};
    base_ = SortedText(app_.work.document);
    ++count.sessions;
  }
  session(const session&) = delete;
  session& operator=(const session&) = delete;
  ~session() { LimitFiles(RLIM_INFINITY); }

  void Run() {
    for (int i = 0; i < kEventsOfASession && !model_.ended; ++i) {
      if (random_.OneIn(model_.disk.is_full ? 30 : 300)) FillOrEmptyDisk();
      Send(hand_.Next());
    }
    if (!model_.ended) UndoAll();
  }

 private:
  std::string In(const std::string& name) const { return folder_.Path() + name; }

  // A limit on the size of files stands for a full disk.
  static void LimitFiles(rlim_t bytes) {
    rlimit limits{};
    getrlimit(RLIMIT_FSIZE, &limits);
    limits.rlim_cur = std::min(bytes, limits.rlim_max);
    setrlimit(RLIMIT_FSIZE, &limits);
  }
  void FillOrEmptyDisk() {
    model_.disk.is_full = !model_.disk.is_full;
    LimitFiles(model_.disk.is_full ? 0 : RLIM_INFINITY);
  }

  void Send(const event& happened);
  void CompareAll();
  void CheckInvariants();
  void CheckRest(const event& happened);
  void CheckUndo(bool was_at_bottom);
  void CheckSaved();
  void CheckKept();
  void UndoAll();

  dice random_;
  scratch_folder folder_;
  wild_ui desk_;
  wild_tools tools_;
  byte_metrics metrics_;
  program app_{{desk_, metrics_, tools_, FixedMoment}};
  wild_hand hand_{app_, desk_, random_};
  reference model_{app_.libraries, app_.ids, desk_};
  std::string base_;                         // what undo leads back to
  std::map<std::string, std::string> kept_;  // what files hold, by path
  bool shows_bad_net_ = false;               // a net between two types, until the next drawing
  figures& count_;
};

void session::Send(const event& happened) {
  ++count_.events;
  const bool was_at_bottom = model_.past.empty();
  const std::int64_t nets_before = app_.work.document.next_net_id;
  desk_.last = {};
  tools_.results.clear();
  const bool goes_on = HandleEvent(app_, happened);
  model_.Handle(happened, tools_);

  Expect(goes_on == !model_.ended, "the program ends just when it is told to");
  Expect(desk_.last.messages == model_.messages, "the messages are those of the reference");
  Expect(desk_.complaints.empty(),
         desk_.complaints.empty() ? "" : "a desktop can follow: " + desk_.complaints.front());
  CompareAll();
  CheckInvariants();
  CheckRest(happened);
  CheckUndo(was_at_bottom);
  if (!model_.saved_path.empty()) CheckSaved();
  CheckKept();
  if (app_.work.document.next_net_id > nets_before) ++count_.nets_made;
}

void session::CompareAll() {
  const design& document = app_.work.document;
  const workspace& work = app_.work;
  reference_design& now = model_.now;
  if (model_.is_unknown) {
    now.blocks.assign(document.blocks.begin(), document.blocks.end());
    now.nets.assign(document.nets.begin(), document.nets.end());
    now.notes.assign(document.texts.begin(), document.texts.end());
    model_.next_block_id = document.next_block_id;
    model_.next_net_id = document.next_net_id;
    model_.next_note_id = document.next_text_id;
  }
  Compare(document.blocks, now.blocks, &dvblock::id, model_.was_undone);
  Compare(document.nets, now.nets, &net::net_id, model_.was_undone);
  Compare(document.texts, now.notes, &textblock::id, model_.was_undone);
  Expect(document.next_block_id == model_.next_block_id &&
             document.next_net_id == model_.next_net_id &&
             document.next_text_id == model_.next_note_id,
         "the next ids are those of the reference");
  Expect(document.has_selection == now.has_selection, "something is selected or nothing is");
  Expect(document.unsaved_changes == model_.unsaved, "the design counts as changed or saved");
  Expect(document.file_name == model_.file_name, "the design has its file's name");
  Expect(work.hand.index() == static_cast<std::size_t>(model_.hand),
         "the hand does what the reference's does");
  const int modal = desk_.ModalWindow();
  Expect((modal == 0 ? "" : desk_.open_windows.at(modal).title) == model_.modal_title,
         "the window that is open is the reference's");
  Expect(desk_.is_main_enabled == (modal == 0), "only modal windows disable the main window");
}

void session::CheckInvariants() {
  const design& document = app_.work.document;
  Expect(AreUnique(document.blocks, &dvblock::id, document.next_block_id) &&
             AreUnique(document.nets, &net::net_id, document.next_net_id) &&
             AreUnique(document.texts, &textblock::id, document.next_text_id),
         "ids are unique");
  for (const net& wire : document.nets) {
    Expect(LiesOnPin(document, wire.id_1, wire.pin_1_name, {wire.x_1, wire.y_1}) &&
               LiesOnPin(document, wire.id_2, wire.pin_2_name, {wire.x_2, wire.y_2}),
           "net ends lie on the pins that they name");
    Expect(desk_.ModalWindow() != 0 || (wire.color == kNetColour && !wire.selected),
           "nets are highlighted only under the pin window");
  }
}

// Escape, like any menu command, a release and an interruption lead back to rest.
void session::CheckRest(const event& happened) {
  const auto* mouse = std::get_if<canvas_mouse>(&happened);
  const bool is_released = mouse != nullptr && mouse->action == mouse_action::kLeftRelease;
  const bool is_chosen = std::holds_alternative<menu_chosen>(happened);
  const bool is_lost = std::holds_alternative<canvas_interrupted>(happened);
  if (desk_.last.is_redrawn) shows_bad_net_ = false;
  if (is_chosen && !model_.messages.empty()) shows_bad_net_ = true;
  if (is_released || is_chosen || is_lost) {
    Expect(std::holds_alternative<resting>(app_.work.hand), "every mode ends");
    Expect(desk_.over.kind == overlay::shape::kNone || shows_bad_net_,
           "nothing is left of a band or a wire");
  }
  if (is_released || is_chosen) {
    Expect(desk_.pointer == pointer_shape::kNormal, "the pointer is the ordinary one");
    Expect(desk_.status[0].empty() && desk_.status[2].empty(), "the status fields are empty");
  }
}

void session::CheckUndo(bool was_at_bottom) {
  const auto& records = app_.work.undo.records;
  std::size_t groups = records.empty() ? 0 : 1;
  for (std::size_t i = 1; i < records.size(); ++i) {
    if (records[i].undo_group != records[i - 1].undo_group) ++groups;
  }
  Expect(groups == model_.past.size(), "one undo takes back one action");
  if (model_.was_undone) ++count_.undone;
  if (model_.was_replaced) base_ = SortedText(app_.work.document);
  if (!model_.past.empty()) return;
  Expect(SortedText(app_.work.document) == base_, "undo to the bottom gives the design back");
  if (!was_at_bottom && model_.was_undone) ++count_.to_the_bottom;
}

void session::CheckSaved() {
  ++count_.saves;
  const std::string& path = model_.saved_path;
  const std::string saved = ReadAll(path);
  kept_[path] = saved;
  Expect(saved == DesignText(app_.work.document), "a saved file holds the whole design");
  const loaded_design opened =
      LoadDesign(path, {.libraries = app_.libraries, .metrics = metrics_, .line_separator = "\n"});
  if (model_.disk.files[path].kind != reference_file::content::kDesign) {
    Expect(opened.status == load_status::kMalformed, "a raw value makes a file malformed");
    return;
  }
  Expect(opened.status == load_status::kLoaded && opened.reports.empty() &&
             DesignText(opened.document) == saved,
         "a saved file opens again and saves to the same bytes");
  ++count_.opened_again;
}

// What can't be written leaves the old file.
void session::CheckKept() {
  const std::string configuration = In("Mardel.con");
  if (model_.was_configured) {
    ++count_.configured;
    if (!model_.disk.is_full) kept_[configuration] = ConfigurationText(app_.options);
  }
  const bool was_refused = model_.disk.is_full && !model_.messages.empty();
  if (!model_.was_configured && !was_refused) return;
  for (const auto& [path, bytes] : kept_) {
    const auto file = model_.disk.files.find(path);
    const bool may_differ =
        file != model_.disk.files.end() && file->second.kind == reference_file::content::kNoDesign;
    Expect(may_differ || ReadAll(path) == bytes, "a full disk costs no file");
    if (model_.disk.is_full) ++count_.kept;
  }
}

void session::UndoAll() {
  for (int i = 0; desk_.ModalWindow() != 0; ++i) {
    Expect(i < 100, "every window can be closed");
    Send(gadget_used{desk_.ModalWindow(),
                     desk_.open_windows.at(desk_.ModalWindow()).title == "Configuration" ? 9 : 2});
  }
  while (!model_.past.empty()) Send(menu_chosen{app_.ids.undo});
  Send(menu_chosen{app_.ids.undo});
  Expect(desk_.status[1] == "Undo stack empty", "an empty undo stack is told");
}

int Run(int count, unsigned seed) {
  figures all;
  for (unsigned i = seed; all.events < count; ++i) {
    const int before = all.events;
    try {
      session(i, all).Run();
    } catch (const std::exception& broken) {
      std::fprintf(stderr, "seed %u, event %d: not kept: %s\n", i, all.events - before,
                   broken.what());
      return 1;
    }
  }
  std::printf(
      "%d events in %d sessions, %d nets, %d saves of which %d opened again to the same bytes, "
      "%d configurations, %d times an old file on a full disk, %d undone, %d times to the bottom: "
      "OK\n",
      all.events, all.sessions, all.nets_made, all.saves, all.opened_again, all.configured,
      all.kept, all.undone, all.to_the_bottom);
  return 0;
}

}  // namespace
}  // namespace mardel

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fputs("usage: model_run COUNT [SEED]\n", stderr);
    return 2;
  }
  return mardel::Run(std::atoi(argv[1]), argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 0);
}
