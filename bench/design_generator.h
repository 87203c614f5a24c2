// Realistic designs and libraries of any size, always the same ones for the same seed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "editor/design.h"
#include "library/library_set.h"

namespace mardel {

// The library "synth0" and those after it: each begins with the blocks that GenerateDesign places,
// "head" to "split", and goes on with "stage5" and so on up to `blocks` blocks.
std::string LibraryText(int number, int blocks);

struct generated_size {
  std::size_t blocks = 0;  // at least; the last chain is finished
  std::uint32_t seed = 1;
};

// Fills an empty design with chains of some 25 blocks that branch and join again: about 1.5 nets a
// block, every pin wired, chip registers at both ends, a memory register in some, and a note beside
// each. `libraries` must hold the built-in ones and "synth0".
void GenerateDesign(design& document, const library_set& libraries, generated_size size);

}  // namespace mardel
