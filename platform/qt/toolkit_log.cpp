#include "platform/qt/toolkit_log.h"

#include <QString>
#include <QtGlobal>
#include <cstdio>
#include <cstdlib>

namespace mardel {
namespace {

constexpr int kPartMissing = 3;  // as the command line has it

void TellWhoAsks(const QString& text) {
  if (!qEnvironmentVariableIsSet("QT_DEBUG_PLUGINS")) return;
  std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
}

// The toolkit would end a process without a display by an abort.
void HandleWindowMessage(QtMsgType type, const QMessageLogContext& /*where*/, const QString& text) {
  TellWhoAsks(text);
  if (type != QtFatalMsg) return;
  SayNoWindow();
  std::_Exit(kPartMissing);
}

void HandlePictureMessage(QtMsgType type, const QMessageLogContext& /*where*/,
                          const QString& text) {
  TellWhoAsks(text);
  if (type != QtFatalMsg) return;
  std::fputs("mardel: the toolkit's part that draws pictures can't be loaded\n", stderr);
  std::_Exit(kPartMissing);
}

}  // namespace

void SayNoWindow() {
  std::fputs(
      "mardel: the window system can't be reached; QT_DEBUG_PLUGINS=1 tells what was tried\n",
      stderr);
}

void QuietToolkit() {
  qInstallMessageHandler(HandleWindowMessage);
}

void QuietToolkitForPictures() {
  qInstallMessageHandler(HandlePictureMessage);
}

}  // namespace mardel
