// The status bar: fields side by side, each one line of plain text, cut where it does not fit.
#pragma once

#include <QStatusBar>
#include <string>
#include <vector>

namespace mardel {

class status_field;

class status_fields : public QStatusBar {
 public:
  // Widths in pixels; 0 takes the rest of the window.
  explicit status_fields(const std::vector<int>& widths);
  void Set(int field, const std::string& text);

 private:
  std::vector<status_field*> fields_;  // children of this
};

}  // namespace mardel
