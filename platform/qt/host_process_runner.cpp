#include <QProcess>
#include <QString>
#include <QStringList>
#include <algorithm>

#include "platform/process.h"
#include "platform/text.h"

namespace mardel {
namespace {

// Takes a tool's output as it comes, in bounded memory.
class output_lines {
 public:
  void Append(const QByteArray& bytes) {
    std::string lines = bytes.toStdString();
    std::replace(lines.begin(), lines.end(), '\n', '\r');
    if (!lines.empty()) last_line_ended_ = bytes.back() == '\n';
    kept_.Append(lines);
  }
  std::string Finish() {
    if (!last_line_ended_) kept_.Append("\r");
    return kept_.Text();
  }

 private:
  cut_text kept_{kMostToolOutput};
  bool last_line_ended_ = true;
};

QStringList ArgumentList(const std::string& arguments) {
  QStringList list;
  for (const std::string& argument : SplitArguments(arguments)) {
    list.append(QString::fromStdString(argument));
  }
  return list;
}

// A bare name stands for the file in the current folder, not for a command on the search path.
QString ProgramPath(const std::string& program) {
  const bool bare = program.find('/') == std::string::npos;
  return QString::fromStdString(bare ? "./" + program : program);
}

}  // namespace

tool_result host_process_runner::RunTool(const std::string& program, const std::string& arguments) {
  QProcess process;
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  process.setStandardInputFile(QProcess::nullDevice());
  process.start(ProgramPath(program), ArgumentList(arguments), QIODevice::ReadOnly);
  if (!process.waitForStarted(-1)) return {};

  output_lines output;
  while (process.state() != QProcess::NotRunning) {
    process.waitForReadyRead(-1);
    output.Append(process.readAllStandardOutput());
  }
  const bool killed = process.exitStatus() == QProcess::CrashExit;  // its code is then the signal's
  return {true, output.Finish(), process.exitCode() + (killed ? 128 : 0)};
}

}  // namespace mardel
