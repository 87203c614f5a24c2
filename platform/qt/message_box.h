// Modal message boxes.
#pragma once

#include <QWidget>

#include "platform/ui.h"

namespace mardel {

// Waits for the answer. A text of many lines, such as a tool's output, scrolls.
answer ShowMessageBox(QWidget* owner, const message& shown);

}  // namespace mardel
