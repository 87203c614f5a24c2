#include "platform/qt/requester.h"

#include <QDir>
#include <QFileDialog>

#include "platform/qt/qt_text.h"

namespace mardel {

QStringList NameFilters(const std::string& patterns) {
  const QStringList parts = ToQt(patterns).split('|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    // The toolkit takes the pattern from the parentheses, and "*.*" would hide names without a dot.
    const QString name = parts[i].section('(', 0, 0).trimmed();
    const QString pattern = parts[i + 1] == "*.*" ? "*" : parts[i + 1];
    filters << name + " (" + pattern + ')';
  }
  return filters;
}

std::string AskFile(QWidget* owner, const file_request& request, requester_kind kind) {
  const QString start = ToQt(request.start);
  const QString wanted = start.section('/', 0, -2, QString::SectionIncludeTrailingSep);
  const QString folder = QDir(wanted).exists() ? wanted : QDir::homePath();
  const QString proposal = start.section('/', -1);
  QFileDialog requester(owner, TitleText(request.title), folder);
  requester.setNameFilters(NameFilters(request.patterns));
  const bool saves = kind == requester_kind::kSave;
  requester.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  requester.setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  if (saves && !proposal.contains('*') && !proposal.contains('?')) requester.selectFile(proposal);
  if (requester.exec() != QDialog::Accepted || requester.selectedFiles().isEmpty()) return {};
  return FromQt(requester.selectedFiles().front());
}

}  // namespace mardel
