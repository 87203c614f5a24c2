// The steps in which MergeDesigns works.
#pragma once

#include <array>
#include <limits>
#include <string>
#include <vector>

#include "codegen/compare/design_merge.h"

namespace mardel {

// A record as the versions have it; null where a version does not.
template <class record>
struct versions_of {
  const record* base = nullptr;
  const record* ours = nullptr;
  const record* theirs = nullptr;
};

// In the order of the base, then what ours added, then what theirs added. What both added alike,
// blocks with alike wires only, is one.
std::vector<versions_of<dvblock>> AlignBlocks(const three_designs& versions);
std::vector<versions_of<textblock>> AlignNotes(const three_designs& versions);

constexpr std::size_t kNoBlock = std::numeric_limits<std::size_t>::max();

// A wire between two pins, whichever way round each version has it.
struct aligned_net {
  versions_of<net> one;
  std::array<std::size_t, 2> blocks = {kNoBlock, kNoBlock};  // positions among the aligned blocks
  std::array<bool, 3> is_turned = {};  // in base, ours and theirs: its second end is on blocks[0]
};

// Equally ordered.
std::vector<aligned_net> AlignNets(const three_designs& versions,
                                   const std::vector<versions_of<dvblock>>& blocks);

// Each takes a record that all three versions have, and adds a line for what ours and theirs both
// changed.
dvblock MergeBlock(const versions_of<dvblock>& of, std::vector<std::string>& conflicts);
textblock MergeNote(const versions_of<textblock>& of, std::vector<std::string>& conflicts);
// A copy of ours.
net MergeNet(const aligned_net& of, const std::string& words, std::vector<std::string>& conflicts);

// Of the end on blocks[0], then of the other, in base (0), ours (1) or theirs (2), which must have
// the wire.
std::array<std::int64_t, 2> PinNumbersOf(const aligned_net& of, std::size_t version);

// Whether a side changed the record, other than by moving it in the list.
bool IsChanged(const dvblock& base, const dvblock& side);
bool IsChanged(const textblock& base, const textblock& side);

}  // namespace mardel
