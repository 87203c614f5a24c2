// The picture of the about box.
#pragma once

#include <string_view>

namespace mardel {

// A PNG, three times the size that it is shown at. Drawn from app/logo.svg by
// `rsvg-convert -w 180 -h 261 app/logo.svg -o app/logo.png`.
std::string_view LogoPng();

}  // namespace mardel
