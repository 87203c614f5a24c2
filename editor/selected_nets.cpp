#include "editor/selected_nets.h"

namespace mardel {
namespace {

// `visit` gets each net with the selected block that it touches: twice when both of its ends are on
// different ones. The last block counts where ids repeat.
template <class visitor>
void ForEachNetOfSelection(design& document, visitor visit) {
  std::unordered_map<std::int64_t, const dvblock*, id_hash> selected;
  for (const dvblock& block : document.blocks) {
    if (block.selected) selected.insert_or_assign(block.id, &block);
  }
  if (selected.empty()) return;
  listed_net wire;
  for (wire.at = document.nets.begin(); wire.at != document.nets.end(); ++wire.at, ++wire.place) {
    const auto first = selected.find(wire.at->id_1);
    if (first != selected.end()) visit(wire, *first->second);
    if (wire.at->id_1 == wire.at->id_2) continue;
    const auto second = selected.find(wire.at->id_2);
    if (second != selected.end()) visit(wire, *second->second);
  }
}

}  // namespace

nets_by_block NetsOfSelection(design& document) {
  nets_by_block found;
  for (const dvblock& block : document.blocks) {
    if (block.selected) found.try_emplace(block.id);
  }
  ForEachNetOfSelection(document, [&](const listed_net& wire, const dvblock& block) {
    found.at(block.id).push_back(wire);
  });
  return found;
}

void UpdateNetEndsOfSelection(design& document) {
  ForEachNetOfSelection(document, [](const listed_net& wire, const dvblock& block) {
    UpdateNetEnds(*wire.at, block);
  });
}

}  // namespace mardel
