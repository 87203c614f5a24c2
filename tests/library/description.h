// Libraries, their menus and their blocks as text.
#pragma once

#include <span>
#include <sstream>
#include <string>

#include "app/main_menu.h"
#include "tests/support/fixed_metrics.h"
#include "tests/support/recording_painter.h"

namespace mardel {

// Size, pins and parameters of a definition or a placed block.
template <class any_block>
std::string DescribeContents(const any_block& block) {
  std::ostringstream out;
  out << block.width << 'x' << block.height;
  for (const pin& p : block.pins) {
    out << " (" << p.pin_num << ' ' << p.pin_name.Text() << ' ' << p.pin_type.Text() << ' '
        << p.pin_side.Text() << ' ' << p.pin_x << ',' << p.pin_y << ": " << p.pin_desc.Text()
        << ')';
  }
  for (const param& p : block.params) {
    out << " [" << p.param_num << ' ' << p.param_name.Text() << ' ' << p.param_type.Text() << '='
        << p.param_value << ": " << p.param_desc.Text() << ']';
  }
  return out.str();
}

inline std::string DescribeShape(const blockdef& block) {
  return "  " + block.lib + ' ' + DescribeContents(block) + ':';
}

// The libraries and the submenus from these on; neighbours of one shape share a line.
inline std::string Describe(const library_set& set, std::size_t first_library,
                            std::size_t first_menu) {
  std::ostringstream out;
  for (std::size_t i = first_library; i < set.Libraries().size(); ++i) {
    const library& l = set.Libraries()[i];
    out << l.name << " \"" << l.desc << "\" " << Describe(l.lib_color) << ' '
        << Describe(l.lib_text_color);
    out << '\n';
  }
  const std::vector<menu_item> menus = MenuBar(host_kind::kLinux, {}, set).at(2).items;
  for (const menu_item& submenu : std::span(menus).subspan(first_menu)) {
    out << "menu " << submenu.text;
    std::string shape;
    for (const menu_item& place : submenu.items) {
      const blockdef& block = *set.FindDefinition(place.id);
      if (shape != DescribeShape(block)) out << '\n' << (shape = DescribeShape(block));
      out << ' ' << block.id << ' ' << place.text;
      if (!block.desc.empty()) out << " \"" << block.desc << '"';
    }
    out << '\n';
  }
  return out.str();
}

}  // namespace mardel
