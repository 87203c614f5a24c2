#include "library/block_directory.h"

#include <cstddef>
#include <string_view>

namespace mardel {

namespace {

constexpr int kTree = 1;
constexpr int kInformation = 2;

std::string BlockText(const blockdef& block) {
  std::string text =
      "Library: " + block.lib + "\r\nBlock: " + block.sub + "\r\n\r\n" + block.desc + "\r\n\r\n";
  text += "Pins: \r\n";
  for (const pin& p : block.pins) text += p.pin_name + " : " + p.pin_desc + "\r\n";
  text += "\r\nParameters: \r\n";
  for (const param& p : block.params) text += p.param_name + " : " + p.param_desc + "\r\n";
  return text;
}

}  // namespace

std::string BlockText(const library_set& set, std::string_view lib, std::string_view sub) {
  const std::span<const std::size_t> found = set.FindDefinitions(lib, sub);
  return found.empty() ? std::string() : BlockText(set.Definitions()[found.front()]);
}

std::vector<tree_item> DirectoryTree(const library_set& set) {
  std::vector<tree_item> tree;
  std::string_view lib;
  for (const blockdef& block : set.Definitions()) {
    if (block.lib != lib) {
      lib = block.lib;
      tree.push_back({0, block.lib});
    }
    tree.push_back({1, block.sub});
  }
  return tree;
}

std::string DirectoryText(const library_set& set, const std::vector<tree_item>& tree,
                          int selected) {
  if (selected < 0 || static_cast<std::size_t>(selected) >= tree.size()) return {};
  auto heading = static_cast<std::size_t>(selected);
  while (heading > 0 && tree[heading].level != 0) --heading;
  const std::string_view lib = tree[heading].level == 0 ? tree[heading].text : std::string_view();

  const tree_item& shown = tree[static_cast<std::size_t>(selected)];
  if (shown.level == 0) {
    const library* found = set.FindLibrary(lib);
    return found == nullptr ? std::string() : found->desc;
  }
  return BlockText(set, lib, shown.text);
}

void OpenBlockDirectory(const library_set& set, open_windows& windows) {
  const window contents = {
      .title = "Block Directory",
      .width = 580,
      .height = 380,
      .gadgets =
          {
              {.id = kTree,
               .kind = gadget_kind::kTree,
               .place = {10, 10, 160, 360},
               .text = {},
               .items = DirectoryTree(set)},
              {.id = kInformation,
               .kind = gadget_kind::kReadOnlyText,
               .place = {180, 10, 390, 360},
               .text = {}},
          },
      .modality = window_modality::kModeless,
      .sizing = window_sizing::kResizable,
  };
  const auto show_selected = [&set, &desk = windows.Desk()](const gadget_used& used) {
    if (used.gadget != kTree) return;
    const int selected = desk.SelectedTreeItem(used.window, kTree);
    desk.SetGadgetText(used.window, kInformation, DirectoryText(set, DirectoryTree(set), selected));
  };
  windows.Open(contents,
               {.use = show_selected, .close = [&windows](int number) { windows.Close(number); }});
}

}  // namespace mardel
