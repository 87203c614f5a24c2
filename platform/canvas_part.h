// What a screen reader is told of the canvas.
#pragma once

#include <string>

#include "platform/geometry.h"

namespace mardel {

struct canvas_part {
  enum class kind { kBlock, kPin, kNote };
  kind of = kind::kBlock;
  std::string name;
  rectangle place;  // canvas pixels
};

}  // namespace mardel
