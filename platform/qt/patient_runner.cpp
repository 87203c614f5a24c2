#include "platform/qt/patient_runner.h"

#include <QApplication>
#include <QEvent>

namespace mardel {
namespace {

bool IsInput(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::DragEnter:
    case QEvent::Drop:
      return true;
    default:  // the toolkit's enumeration has hundreds
      return false;
  }
}

void Breathe() {
  QApplication::processEvents();
}

class busy_windows : public QObject {
 public:
  busy_windows() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    qApp->installEventFilter(this);
  }
  busy_windows(const busy_windows&) = delete;
  busy_windows& operator=(const busy_windows&) = delete;
  ~busy_windows() override {
    Breathe();  // drops what came last
    qApp->removeEventFilter(this);
    QApplication::restoreOverrideCursor();
  }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* happened) override {
    return IsInput(happened->type());
  }
};

}  // namespace

patient_runner::patient_runner() : runner_(tool_errors::kKept, Breathe) {}

tool_result patient_runner::RunTool(const std::string& program, const std::string& arguments) {
  const busy_windows busy;
  return runner_.RunTool(program, arguments);
}

}  // namespace mardel
