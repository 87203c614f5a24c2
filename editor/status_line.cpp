#include "editor/status_line.h"

#include <string>

namespace mardel {

void ClearStatus(ui& desk) {
  for (int field = 0; field < 3; ++field) desk.SetStatus(field, "");
}

void ShowPosition(ui& desk, point at) {
  desk.SetStatus(0, "");
  desk.SetStatus(1, "X: " + std::to_string(at.x) + ", Y: " + std::to_string(at.y));
  desk.SetStatus(2, "");
}

void ShowPin(ui& desk, const pin_hit& hit) {
  desk.SetStatus(0, hit.pin_name);
  desk.SetStatus(1, hit.pin_desc);
  desk.SetStatus(2, hit.pin_type);
}

}  // namespace mardel
