// A window as text, a line for each gadget.
#pragma once

#include <sstream>
#include <string>

#include "platform/ui.h"
#include "tests/support/recording_painter.h"

namespace mardel {

inline std::string Describe(const window& shown) {
  static const char* const kinds[] = {"label",  "centred", "right",    "field",
                                      "editor", "text",    "checkbox", "option",
                                      "button", "default", "tree",     "image"};
  std::ostringstream out;
  out << shown.width << 'x' << shown.height;
  for (const gadget& g : shown.gadgets) {
    out << '\n' << g.id << ' ' << kinds[static_cast<int>(g.kind)] << (g.checked ? "* " : " ");
    out << Describe(g.place) << " [" << (g.kind == gadget_kind::kImage ? "PNG" : g.text) << ']';
    if (!g.tooltip.empty()) out << " tip " << g.tooltip;
  }
  return out.str();
}

}  // namespace mardel
