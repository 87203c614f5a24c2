// Library files: loading, and what the menu and the block directory show of them.
#include "fuzz/fuzzed_design.h"
#include "library/block_directory.h"

namespace mardel {
namespace {

void CheckDefinitions(const known_libraries& known) {
  const std::vector<blockdef>& all = known.set.Definitions();
  for (std::size_t index = 0; index < all.size(); ++index) {
    const blockdef& block = all[index];
    Require(known.set.FindDefinition(block.id) == &block, "a block is found by its menu id");
    Require(block.id < known.so_far.next_id, "the next menu id is free");
    const auto same = known.set.FindDefinitions(block.lib, block.sub);
    Require(std::ranges::binary_search(same, index), "a block is found by its names");
    Require(block.width >= 24 && block.height >= 24, "a block is no smaller than its margins");
  }
}

// Each library's items are blocks of the set; no block is in the menu twice.
void CheckMenu(const known_libraries& known) {
  std::size_t count = 0;
  const std::vector<menu> bar = MenuBar(host_kind::kLinux, {}, known.set);
  for (const menu_item& submenu : bar.at(2).items) {
    count += submenu.items.size();
    for (const menu_item& place : submenu.items) {
      const blockdef* block = known.set.FindDefinition(place.id);
      Require(block != nullptr && block->sub == place.text, "a menu item names its block");
    }
  }
  Require(count == known.set.Definitions().size(), "every block has one menu item");
}

void ReadDirectory(const library_set& set) {
  const std::vector<tree_item> tree = DirectoryTree(set);
  const auto step = static_cast<int>(1 + tree.size() / 64);  // each looks for its heading
  for (int item = -1; item <= std::ssize(tree); item += step) DirectoryText(set, tree, item);
}

}  // namespace

void TryInput(std::string_view input) {
  known_libraries known;
  AddLibrary(known.so_far, {"MREG"});  // stands for the built-in ones, which take long to build
  // Parts behind a zero byte are further files, so that names meet.
  constexpr std::size_t kMostFiles = 64;
  for (std::size_t start = 0, file = 0; start <= input.size() && file < kMostFiles; ++file) {
    const std::size_t end = std::min(input.find('\0', start), input.size());
    known.LoadText(input.substr(start, end - start));
    start = end + 1;
  }
  known.Finish();
  CheckDefinitions(known);
  CheckMenu(known);
  ReadDirectory(known.set);
}

}  // namespace mardel
