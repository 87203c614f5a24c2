// Placed blocks, nets and notes as XML texts that give back every field exactly.
#pragma once

#include <string>
#include <string_view>

#include "editor/design.h"

namespace mardel {

// One document, its root named after the record's type. Strings hold only what XML can.
std::string WriteSnapshot(const dvblock& block);
std::string WriteSnapshot(const net& wire);
std::string WriteSnapshot(const textblock& note);

// Each reads what WriteSnapshot made of the same type of record; false for any other text, and
// `into` is unchanged then.
bool ReadSnapshot(std::string_view xml, dvblock& into);
bool ReadSnapshot(std::string_view xml, net& into);
bool ReadSnapshot(std::string_view xml, textblock& into);

}  // namespace mardel
