// The libraries that stand for the chip's own registers and constants.
#pragma once

#include "library/library_set.h"
#include "library/register_pool.h"
#include "platform/menu.h"

namespace mardel {

enum class expert_mode { kOff, kOn };

// Registers CREG (in expert mode only), MREG, SFR and CONST, appends one submenu each to
// `libraries`, and fills the register pool. Takes a menu id for each block and one more after each
// library; in expert mode also one before the first block.
void BuildBuiltinLibraries(library_set& set, register_pool& pool, menu_builder& builder,
                           expert_mode mode);

}  // namespace mardel
