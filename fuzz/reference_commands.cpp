#include <algorithm>

#include "fuzz/reference.h"

namespace mardel {
namespace {

// Names and values are written as they are.
bool IsReadable(const reference_design& design) {
  const auto is_raw = [](const std::string& text) {
    return text.find_first_of("<&") != std::string::npos || text.find("]]>") != std::string::npos;
  };
  return std::ranges::none_of(design.blocks, [&](const dvblock& block) {
    return is_raw(block.sub) || std::ranges::any_of(block.params, [&](const param& each) {
             return is_raw(each.param_value);
           });
  });
}

void RaisePast(std::int64_t& next, std::int64_t id) {
  next = std::max(next, id + 1);
}

}  // namespace

void reference::Menu(int id, const wild_tools& tools) {
  Rest();
  const int location = id - ids_.first_location;
  if (id == ids_.new_design) return New();
  if (id == ids_.open) return Open();
  if (id == ids_.save) return Save();
  if (id == ids_.save_as) return SaveAs();
  if (id == ids_.generate) return Generate(true, tools);
  if (location >= 0 && location < 16) return Generate(false, tools);
  if (id == ids_.preferences) return OpenDialog("Configuration", 0);
  if (id == ids_.about) return OpenDialog("About Mardel", 0);
  if (id == ids_.add_text) return OpenDialog("Add Text Item", 0);
  if (id == ids_.undo) return UndoLast();
  for (const blockdef& definition : libraries_.Definitions()) {
    if (definition.id == id) return Place(definition);
  }
}

void reference::Place(const blockdef& definition) {
  Remember();
  now.blocks.push_back({next_block_id++, definition.lib, definition.sub, false, 10, 10,
                        definition.width, definition.height, definition.pins, definition.params});
  unsaved = true;
}

void reference::UndoLast() {
  if (past.empty()) return;
  now = past.back();
  past.pop_back();
  for (net& wire : now.nets) {
    wire.color = net().color;
    wire.selected = false;
  }
  was_undone = true;
  unsaved = true;
}

void reference::New() {
  if (!Allows(true)) return;
  now = {};
  past.clear();
  next_block_id = next_net_id = next_note_id = 0;
  unsaved = false;
  was_replaced = true;
  file_name.clear();
}

void reference::Open() {
  if (!Allows(true)) return;
  const std::string name_before = file_name;
  unsaved = false;
  New();
  file_name = name_before;
  if (!desk_.last.path.empty()) Load(desk_.last.path);
}

void reference::Load(const std::string& path) {
  file_name.clear();
  const auto found = disk.files.find(path);
  if (found == disk.files.end()) {
    messages.emplace_back("Error Loading Design");
    return;
  }
  const reference_file& file = found->second;
  if (file.kind == reference_file::content::kNoDesign) {
    messages.emplace_back("Error Parsing Design");
    return;
  }
  messages.insert(messages.end(), static_cast<std::size_t>(file.missing_blocks),
                  "Library block Error");
  file_name = path;
  is_unknown = file.kind == reference_file::content::kStrangeDesign;
  now = file.design;
  Relink();
}

void reference::Relink() {
  DropSelection();
  for (net& wire : now.nets) {
    RaisePast(next_net_id, wire.net_id);
    wire.x_1 = wire.y_1 = wire.x_2 = wire.y_2 = 0;
  }
  for (dvblock& block : now.blocks) RelinkBlock(block);
  for (textblock& note : now.notes) {
    RaisePast(next_note_id, note.id);
    Measure(note);
  }
}

// Of equal names the last one counts.
void reference::RelinkBlock(dvblock& block) {
  RaisePast(next_block_id, block.id);
  for (const blockdef& definition : libraries_.Definitions()) {
    if (definition.lib != block.lib || definition.sub != block.sub) continue;
    block.width = definition.width;
    block.height = definition.height;
    for (pin& p : block.pins) {
      for (const pin& defined : definition.pins) {
        if (defined.pin_name != p.pin_name) continue;
        const std::int64_t number = p.pin_num;
        p = defined;
        p.pin_num = number;
      }
    }
    for (param& p : block.params) {
      for (const param& defined : definition.params) {
        if (defined.param_name != p.param_name) continue;
        p.param_type = defined.param_type;
        p.param_desc = defined.param_desc;
      }
    }
  }
  for (const pin& p : block.pins) {
    for (net& wire : now.nets) {
      if (wire.id_1 == block.id && wire.pin_1_name == p.pin_name) {
        wire.x_1 = block.x + p.pin_x + 3;
        wire.y_1 = block.y + p.pin_y + 3;
      }
      if (wire.id_2 == block.id && wire.pin_2_name == p.pin_name) {
        wire.x_2 = block.x + p.pin_x + 3;
        wire.y_2 = block.y + p.pin_y + 3;
      }
    }
  }
}

void reference::Save() {
  if (file_name.empty()) return SaveAs();
  if (Write(file_name)) unsaved = false;
}

void reference::SaveAs() {
  const std::string& path = desk_.last.path;
  if (path.empty() || !Write(path)) return;
  unsaved = false;
  file_name = path;
}

bool reference::Write(const std::string& path) {
  if (path.starts_with(disk.missing_folder)) return true;
  if (disk.is_full) {
    messages.emplace_back("Error Saving Design");
    return false;
  }
  using enum reference_file::content;
  disk.files[path] = {IsReadable(now) ? kDesign : kNoDesign, now, 0};
  saved_path = path;
  return true;
}

void reference::Generate(bool is_to_ram, const wild_tools& tools) {
  if (!IsComplete()) return;
  const std::string& path = desk_.last.path;
  if (path.empty()) return;
  if (!path.starts_with(disk.missing_folder)) {
    if (disk.is_full) {
      messages.emplace_back("Error Writing Source");
      return;
    }
    disk.files[path] = {};
    std::ranges::stable_sort(now.blocks, {}, &dvblock::x);
  }
  ExpectTools(is_to_ram, tools.results);
}

bool reference::IsComplete() {
  const auto refuse = [this](const char* title) {
    messages.emplace_back(title);
    return false;
  };
  for (const net& wire : now.nets) {
    if (PinType(wire.id_1, wire.pin_1_name) != PinType(wire.id_2, wire.pin_2_name)) {
      return refuse("Net Error");
    }
  }
  for (const dvblock& block : now.blocks) {
    for (const param& each : block.params) {
      if (each.param_value.empty()) return refuse("Parameter Error");
    }
    for (const pin& p : block.pins) {
      if (!IsConnected(block.id, p.pin_name)) return refuse("Unconnected Pin Error");
    }
  }
  return true;
}

bool reference::IsConnected(std::int64_t id, const std::string& name) const {
  return std::ranges::any_of(now.nets, [&](const net& wire) {
    return (wire.id_1 == id && wire.pin_1_name == name) ||
           (wire.id_2 == id && wire.pin_2_name == name);
  });
}

// Throws when fewer were run.
void reference::ExpectTools(bool is_to_ram, const std::vector<tool_result>& runs) {
  std::size_t next = 0;
  const auto has_failed = [&](const tool_result& run) {
    if (run.started && run.exit_code != 0) messages.emplace_back("ERROR");
    return run.started && run.exit_code != 0;
  };
  const auto run_all = [&] {
    if (run_option_ > 1) return;
    if (has_failed(runs.at(next++)) || run_option_ == 1) return;
    const tool_result& assembler = runs.at(next++);
    if (!assembler.started || has_failed(assembler) || !is_to_ram) return;
    messages.emplace_back("Running");
    has_failed(runs.at(next++));
  };
  run_all();
  if (next != runs.size()) messages.emplace_back("a tool was run in vain");
}

bool reference::Allows(bool needs_yes) {
  if (!unsaved) return true;
  messages.emplace_back("Unsaved Changes");
  const answer given = desk_.last.answers.empty() ? answer::kCancel : desk_.last.answers.front();
  return needs_yes ? given == answer::kYes : given != answer::kNo;
}

}  // namespace mardel
