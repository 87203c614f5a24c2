// Reaching the window system.

#include <QCoreApplication>
#include <QtGlobal>
#include <cstdlib>
#include <string_view>

#include "platform/desktop.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/toolkit_log.h"
#include "platform/qt/toolkit_needs.h"

namespace mardel {
namespace {

bool IsSet(const char* name) {
  const char* const value = std::getenv(name);
  return value != nullptr && *value != '\0';
}

bool HasDisplay(int argument_count, char** arguments) {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
  for (int i = 1; i < argument_count; ++i) {
    const std::string_view given = arguments[i];
    if (given == "-platform" || given == "--platform" || given == "-display") return true;
  }
  return IsSet("DISPLAY") || IsSet("WAYLAND_DISPLAY") || IsSet("QT_QPA_PLATFORM") ||
         IsSet("QT_DEBUG_PLUGINS");  // who asks for the toolkit's own words gets them
#else
  static_cast<void>(argument_count);
  static_cast<void>(arguments);
  return true;
#endif
}

}  // namespace

std::unique_ptr<desktop> StartDesktop(int& argument_count, char** arguments) {
  if (!HasDisplay(argument_count, arguments)) {
    SayNoWindow();
    return nullptr;
  }
  if (!ToolkitCanStart()) return nullptr;
  QuietToolkit();
  // Asking the session bus for a global menu bar costs a start more than all the menus.
#if !defined(Q_OS_DARWIN)
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
#endif
  return std::make_unique<qt_desktop>(argument_count, arguments);
}

}  // namespace mardel
