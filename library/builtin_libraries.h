// The libraries that stand for the chip's own registers and constants.
#pragma once

#include "library/library_loading.h"
#include "library/register_pool.h"

namespace mardel {

enum class expert_mode { kOff, kOn };

// Registers CREG (in expert mode only), MREG, SFR and CONST. Takes a menu id for each block and one
// more after each library; in expert mode also one before the first block.
void BuildBuiltinLibraries(library_loading& so_far, expert_mode mode);

// All registers that code generation hands out or presets, none of them taken.
register_pool ChipRegisters();

}  // namespace mardel
