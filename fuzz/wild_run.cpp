// wild_run COUNT [SEED]: sends at least COUNT events of a wild hand to the program's own event
// function, and checks after each what always holds. Prints figures, or what did not hold first.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <stdexcept>

#include "app/event_handling.h"
#include "app/reports.h"
#include "app/startup.h"
#include "codegen/design_file.h"
#include "fuzz/kit.h"
#include "fuzz/wild_hand.h"
#include "fuzz/wild_tools.h"
#include "fuzz/wild_ui.h"
#include "tests/support/files.h"
#include "tests/support/fixed_metrics.h"
#include "tests/support/fixed_moment.h"
#include "tests/support/scripted_host.h"

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
  int events = 0, sessions = 0, undone = 0, to_the_bottom = 0, saves = 0, full_disks = 0;
};

void Expect(bool holds, const std::string& promise) {
  if (!holds) throw std::runtime_error(promise);
}

template <class record>
std::vector<record> Sorted(const cursor_list<record>& list, std::int64_t record::* id) {
  std::vector<record> all(list.begin(), list.end());
  for (record& each : all) each.selected = false;
  std::ranges::stable_sort(all, {}, id);
  return all;
}

// What a user sees of a design, but for what is selected and what lies above what.
struct content {
  explicit content(const design& from)
      : blocks(Sorted(from.blocks, &dvblock::id)),
        nets(Sorted(from.nets, &net::net_id)),
        notes(Sorted(from.texts, &textblock::id)) {
    for (net& wire : nets) wire.color = kNetColour;
  }
  bool operator==(const content&) const = default;

  std::vector<dvblock> blocks;
  std::vector<net> nets;
  std::vector<textblock> notes;
};

template <class record>
bool AreUnique(const std::vector<record>& sorted, std::int64_t record::* id, std::int64_t next_id) {
  return std::ranges::adjacent_find(sorted, {}, id) == sorted.end() &&
         (sorted.empty() || sorted.back().*id < next_id);
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

std::size_t CountGroups(const undo_stack& stack) {
  std::size_t groups = 0;
  for (std::size_t i = 0; i < stack.records.size(); ++i) {
    if (i == 0 || stack.records[i].undo_group != stack.records[i - 1].undo_group) ++groups;
  }
  return groups;
}

class session {
 public:
  session(unsigned seed, figures& count)
      : random_(seed), desk_(random_), tools_(random_), count_(count) {
    WriteAll(In("Mardel.con"), "<c><libraries_path>" + folder_.Path() + "</libraries_path></c>");
    WriteAll(In("kit.dvl"), kKit);
    WriteAll(In("strange.mrd"), kStrange);
    WriteAll(In("broken.mrd"), "<MardelDesign><blocks>");
    desk_.paths = {"",          In("a.mrd"),      In("b.mrd"), In("a.mrd"), In("strange.mrd"),
                   In("c.dvc"), In("broken.mrd"), In("none/x")};
    ReadSettings(app_,
                 {.kind = host_kind::kLinux, .folders = {}, .current_folder = folder_.Path()});
    ShowReports(desk_, FillLibraries(app_));
    ++count.sessions;
  }
  session(const session&) = delete;
  session& operator=(const session&) = delete;
  ~session() { LimitFiles(RLIM_INFINITY); }

  void Run() {
    for (int i = 0; i < kEventsOfASession && !is_over_; ++i) {
      if (random_.OneIn(files_on_full_disk_.empty() ? 300 : 30)) FillOrEmptyDisk();
      Send(hand_.Next());
    }
    if (!is_over_) UndoAll();
  }

 private:
  using files = std::vector<std::pair<std::string, std::string>>;

  std::string In(const std::string& name) const { return folder_.Path() + name; }
  files Files() const;
  void FillOrEmptyDisk();
  void Send(const event& happened);
  void CheckDesign(const content& now);
  void CheckRest(const event& happened);
  void CheckUndo(int command, bool is_dragging, content now);
  void CheckSaved(int command);
  void UndoAll();

  dice random_;
  scratch_folder folder_;
  wild_ui desk_;
  wild_tools tools_;
  byte_metrics metrics_;
  program app_{{desk_, metrics_, tools_, FixedMoment}};
  wild_hand hand_{app_, desk_, random_};
  content before_{app_.work.document};        // the last event
  std::vector<std::optional<content>> past_;  // what each undo leads back to, where that was seen
  files files_on_full_disk_;
  bool shows_bad_net_ = false;  // a net between two types, until the next drawing
  bool is_over_ = false;
  figures& count_;
};

session::files session::Files() const {
  files found;
  for (const auto& each : std::filesystem::directory_iterator(folder_.Path())) {
    found.emplace_back(each.path(), ReadAll(each));
  }
  std::ranges::sort(found);
  return found;
}

void session::FillOrEmptyDisk() {
  const bool was_full = !files_on_full_disk_.empty();
  if (was_full) Expect(Files() == files_on_full_disk_, "a full disk costs no file");
  files_on_full_disk_ = was_full ? files() : Files();
  LimitFiles(was_full ? RLIM_INFINITY : 0);
  count_.full_disks += was_full ? 1 : 0;
}

void session::Send(const event& happened) {
  ++count_.events;
  desk_.last = {};
  const bool is_dragging = !std::holds_alternative<resting>(app_.work.hand);
  is_over_ = !HandleEvent(app_, happened);
  const auto* chosen = std::get_if<menu_chosen>(&happened);
  const int command = chosen == nullptr ? 0 : chosen->id;

  Expect(desk_.complaints.empty(),
         desk_.complaints.empty() ? "" : "a desktop can follow: " + desk_.complaints.front());
  Expect(desk_.is_main_enabled == (desk_.ModalWindow() == 0),
         "only modal windows disable the main window");
  content now(app_.work.document);
  CheckDesign(now);
  CheckRest(happened);
  CheckUndo(command, is_dragging, std::move(now));
  if (files_on_full_disk_.empty()) CheckSaved(command);
}

void session::CheckDesign(const content& now) {
  const design& document = app_.work.document;
  Expect(AreUnique(now.blocks, &dvblock::id, document.next_block_id) &&
             AreUnique(now.nets, &net::net_id, document.next_net_id) &&
             AreUnique(now.notes, &textblock::id, document.next_text_id),
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
  if (is_chosen && desk_.last.messages > 0) shows_bad_net_ = true;
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

void session::CheckUndo(int command, bool is_dragging, content now) {
  const std::size_t groups = CountGroups(app_.work.undo);
  const bool is_replaced = command == app_.ids.new_design || command == app_.ids.open;
  if (is_replaced && groups == 0) {
    past_.clear();
  } else if (command == app_.ids.undo && !past_.empty()) {
    Expect(groups + 1 == past_.size(), "one undo takes back one action");
    Expect(!past_.back() || past_.back() == now, "undo gives back what was before");
    past_.pop_back();
    ++count_.undone;
    if (past_.empty()) ++count_.to_the_bottom;
  } else if (groups == past_.size()) {
    Expect(is_dragging || now == before_, "what changes the design can be undone");
  } else {
    Expect(groups > past_.size(), "nothing but undo shortens the stack");
    past_.emplace_back(std::move(before_));
    past_.resize(groups);
  }
  before_ = std::move(now);
}

void session::CheckSaved(int command) {
  const design& document = app_.work.document;
  const bool is_asked = command == app_.ids.save_as && !desk_.last.path.empty();
  if (command != app_.ids.save && !is_asked) return;
  if (!std::filesystem::exists(document.file_name)) return;
  ++count_.saves;
  const std::string saved = ReadAll(document.file_name);
  Expect(!document.unsaved_changes && saved == DesignText(document),
         "a saved file holds the whole design");
  const loaded_design opened =
      LoadDesign(document.file_name,
                 {.libraries = app_.libraries, .metrics = metrics_, .line_separator = "\n"});
  Expect(opened.status == load_status::kLoaded && opened.reports.empty() &&
             DesignText(opened.document) == saved,
         "a saved file opens again and saves to the same bytes");
}

void session::UndoAll() {
  for (int i = 0; desk_.ModalWindow() != 0; ++i) {
    Expect(i < 100, "every window can be closed");
    const int window = desk_.ModalWindow();
    const bool is_configuration = desk_.open_windows.at(window).title == "Configuration";
    Send(gadget_used{window, is_configuration ? 9 : 2});
  }
  while (!past_.empty()) Send(menu_chosen{app_.ids.undo});
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
      "%d events in %d sessions, %d saves opened again to the same bytes, %d times a full disk, "
      "%d undone, %d times to the bottom: OK\n",
      all.events, all.sessions, all.saves, all.full_disks, all.undone, all.to_the_bottom);
  return 0;
}

}  // namespace
}  // namespace mardel

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fputs("usage: wild_run COUNT [SEED]\n", stderr);
    return 2;
  }
  return mardel::Run(std::atoi(argv[1]), argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 0);
}
