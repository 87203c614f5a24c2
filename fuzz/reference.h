// The editor as it is told to a beginner: plain vectors, searched from end to end, and an undo that
// keeps whole designs. It is told each event after the program has handled it, since it needs the
// answers that the person gave, and then holds what the program's design must be.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "app/main_menu.h"
#include "editor/design.h"
#include "fuzz/wild_tools.h"
#include "fuzz/wild_ui.h"
#include "library/library_set.h"
#include "platform/event.h"

namespace mardel {

// In list order.
struct reference_design {
  std::vector<dvblock> blocks;
  std::vector<net> nets;
  std::vector<textblock> notes;
  bool has_selection = false;
};

struct reference_file {
  enum class content { kDesign, kNoDesign, kStrangeDesign };
  content kind = content::kNoDesign;
  reference_design design;
  int missing_blocks = 0;  // of a strange design, of which no more is known
};

struct reference_disk {
  std::map<std::string, reference_file> files;  // by path
  std::string missing_folder;                   // no file can be made in it
  bool is_full = false;
};

class reference {
 public:
  enum class mode { kRest, kBlock, kWire, kBand, kNote, kGroup };

  reference(const library_set& libraries, const menu_ids& ids, const wild_ui& desk)
      : libraries_(libraries), ids_(ids), desk_(desk) {}

  void Handle(const event& happened, const wild_tools& tools);

  reference_design now;
  std::vector<reference_design> past;  // what each undo leads back to
  std::int64_t next_block_id = 0, next_net_id = 0, next_note_id = 0;
  bool unsaved = false;
  bool ended = false;
  std::string file_name;
  mode hand = mode::kRest;
  std::string modal_title;  // of the window that is open; "" when none is
  reference_disk disk;

  // What the last event led to.
  std::vector<std::string> messages;  // titles
  bool was_undone = false;            // puts things back anywhere in the lists
  bool was_replaced = false;          // by another design
  bool is_unknown = false;            // by a strange one
  bool was_configured = false;        // the configuration file is written
  std::string saved_path;             // "" when no design was written

 private:
  struct end {
    std::int64_t id = 0;
    pin on;
    point at;
  };

  void Mouse(const canvas_mouse& mouse);
  void Move(point at);
  void MoveSelection(point at);
  void LeftPress(point at);
  void LeftRelease(point at);
  void RightPress(point at);
  void FinishWire(point at);
  void SelectInside(point a, point b);
  void DeleteSelection();
  void DeleteBlock(std::int64_t id);

  void Menu(int id, const wild_tools& tools);
  void Place(const blockdef& definition);
  void UndoLast();
  void New();
  void Open();
  void Load(const std::string& path);
  void Relink();
  void RelinkBlock(dvblock& block);
  void Save();
  void SaveAs();
  bool Write(const std::string& path);
  void Generate(bool is_to_ram, const wild_tools& tools);
  bool IsComplete();
  void ExpectTools(bool is_to_ram, const std::vector<tool_result>& runs);
  bool Allows(bool needs_yes);
  std::string PinType(std::int64_t id, const std::string& name) const;
  bool IsConnected(std::int64_t id, const std::string& name) const;

  void OpenDialog(const std::string& title, std::int64_t subject);
  void OpenPinDialog(const end& on);
  void UseGadget(const gadget_used& used);
  void Confirm(int window);
  void ConfirmNote(int window, bool is_new);
  void ConfirmDevice(int window);
  void ConfirmPin(int window);
  void ConfirmConfiguration(int window);
  void CloseDialog();

  void Rest();
  void Remember() { past.push_back(now); }
  void DropSelection();
  dvblock* TopBlockAt(point at);
  textblock* TopNoteAt(point at);
  std::optional<end> PinAt(point at);
  void SnapEnds(const dvblock& block);
  void Measure(textblock& note) const;

  const library_set& libraries_;
  const menu_ids& ids_;
  const wild_ui& desk_;
  point offset_, band_start_, last_;
  std::optional<end> wire_start_;
  std::int64_t subject_ = 0;
  std::vector<std::int64_t> rows_;  // of the pin dialog: the ids of its nets
  int modal_ = 0;
  int run_option_ = 0;
};

}  // namespace mardel
