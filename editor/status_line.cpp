#include "editor/status_line.h"

#include <string>

namespace mardel {

void ClearStatus(canvas_view& canvas) {
  for (int field = 0; field < 3; ++field) canvas.SetStatus(field, "");
}

void ShowPosition(canvas_view& canvas, point at) {
  canvas.SetStatus(0, "");
  canvas.SetStatus(1, "X: " + std::to_string(at.x) + ", Y: " + std::to_string(at.y));
  canvas.SetStatus(2, "");
}

void ShowPin(canvas_view& canvas, const pin_hit& hit) {
  canvas.SetStatus(0, hit.pin_name);
  canvas.SetStatus(1, hit.pin_desc);
  canvas.SetStatus(2, hit.pin_type);
}

}  // namespace mardel
