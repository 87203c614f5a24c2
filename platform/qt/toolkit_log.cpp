#include "platform/qt/toolkit_log.h"

#include <QtGlobal>
#include <cstdlib>

namespace mardel {
namespace {

// The toolkit would end a process without a display by an abort.
void HandleToolkitMessage(QtMsgType type, const QMessageLogContext& /*where*/,
                          const QString& /*text*/) {
  if (type == QtFatalMsg) std::_Exit(EXIT_FAILURE);
}

}  // namespace

void QuietToolkit() {
  qInstallMessageHandler(HandleToolkitMessage);
}

}  // namespace mardel
