#include "platform/qt/requester.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>

#include "platform/qt/qt_text.h"

using namespace Qt::StringLiterals;

namespace mardel {
namespace {

constexpr QSize kRoomForColumns(820, 520);

// Takes the name as it was typed, where the toolkit's own requester splits it at double quotes.
class file_requester : public QFileDialog {
 public:
  using QFileDialog::QFileDialog;

  QString Path() const {
    if (!chosen_.isEmpty()) return chosen_;
    return selectedFiles().isEmpty() ? QString() : selectedFiles().constFirst();
  }

 protected:
  void accept() override {
    const auto* const typed = findChild<QLineEdit*>(u"fileNameEdit"_s);
    if (typed == nullptr || !typed->text().contains(u'"')) return QFileDialog::accept();
    const QString path = directory().absoluteFilePath(typed->text());
    if (QFileInfo(path).isDir()) return setDirectory(path);
    if (!MayTake(path)) return;
    chosen_ = path;
    done(Accepted);
  }

 private:
  bool MayTake(const QString& path) {
    const QString name = QFileInfo(path).fileName();
    if (acceptMode() == AcceptSave) {
      return !QFileInfo::exists(path) ||
             QMessageBox::warning(
                 this, windowTitle(), name + u" already exists.\nDo you want to replace it?"_s,
                 QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
    }
    if (QFileInfo::exists(path)) return true;
    QMessageBox::warning(
        this, windowTitle(),
        name + u"\nFile not found.\nPlease verify the correct file name was given."_s);
    return false;
  }

  QString chosen_;
};

// The patterns of "Name|pattern|Name|pattern".
bool IsPattern(const QString& proposal, const std::string& patterns) {
  const QStringList parts = ToQt(patterns).split(u'|');
  for (qsizetype i = 1; i < parts.size(); i += 2) {
    if (parts[i] == proposal) return true;
  }
  return false;
}

}  // namespace

QStringList NameFilters(const std::string& patterns) {
  const QStringList parts = ToQt(patterns).split(u'|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    // The toolkit takes the pattern from the last parentheses, which it does not show; and "*.*"
    // would hide names without a dot.
    const QString pattern = parts[i + 1] == "*.*"_L1 ? u"*"_s : parts[i + 1];
    filters << parts[i] + " ("_L1 + pattern + u')';
  }
  return filters;
}

std::string AskFile(QWidget* owner, const file_request& request, requester_kind kind) {
  const QString start = ToQt(request.start);
  const QString wanted = start.section(u'/', 0, -2, QString::SectionIncludeTrailingSep);
  const QString folder = QDir(wanted).exists() ? wanted : QDir::homePath();
  const QString proposal = start.section(u'/', -1);
  file_requester requester(owner, TitleText(request.title), folder);
  requester.resize(requester.size().expandedTo(kRoomForColumns));
  requester.setOption(QFileDialog::HideNameFilterDetails);
  requester.setNameFilters(NameFilters(request.patterns));
  const bool saves = kind == requester_kind::kSave;
  requester.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  requester.setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  if (saves && !IsPattern(proposal, request.patterns)) requester.selectFile(proposal);
  return requester.exec() == QDialog::Accepted ? FromQt(requester.Path()) : std::string();
}

}  // namespace mardel
