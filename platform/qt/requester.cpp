#include "platform/qt/requester.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QScreen>
#include <QTreeView>

#include "platform/qt/message_box.h"
#include "platform/qt/qt_text.h"

using namespace Qt::StringLiterals;

namespace mardel {
namespace {

constexpr QSize kRoomForColumns(150, 32);  // average characters and lines
constexpr double kShareOfScreen = 0.9;     // the rest is for frame and panels

answer Warn(QFileDialog& requester, const std::string& text,
            message_buttons buttons = message_buttons::kOk) {
  return ShowMessageBox(&requester,
                        {FromQt(requester.windowTitle()), text, buttons, message_icon::kCaution});
}

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
    chosen_.clear();
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
    const std::string name = FromQt(QFileInfo(path).fileName());
    if (acceptMode() == AcceptSave) {
      return !QFileInfo::exists(path) ||
             Warn(*this, name + " already exists.\nDo you want to replace it?",
                  message_buttons::kYesNo) == answer::kYes;
    }
    if (QFileInfo::exists(path)) return true;
    Warn(*this, name + "\nFile not found.\nPlease verify the correct file name was given.");
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

constexpr int kTypes = 2;  // the column

// Names take what sizes, types and dates leave. The desktop's own requester has no such columns.
void ShowColumns(QFileDialog& requester) {
  const QFontMetrics font = requester.fontMetrics();
  const QSize wanted(kRoomForColumns.width() * font.averageCharWidth(),
                     kRoomForColumns.height() * font.height());
  requester.resize(wanted.boundedTo(kShareOfScreen * requester.screen()->availableSize()));
  const bool is_narrow = requester.width() < wanted.width();
  const auto* const columns = requester.findChild<QTreeView*>(u"treeView"_s);
  if (columns == nullptr) return;
  columns->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  columns->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  columns->header()->setSectionHidden(kTypes, is_narrow);  // names end in it
}

// Where a name is no UTF-8 the toolkit hands on another, under which there is nothing.
bool CanBeReached(const QString& path, requester_kind kind) {
  const QFileInfo file(path);
  if (file.exists() || kind == requester_kind::kOpen) return file.exists();
  return file.dir().exists() && !file.fileName().contains(QChar::ReplacementCharacter);
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
  ShowColumns(requester);
  requester.setOption(QFileDialog::HideNameFilterDetails);
  requester.setNameFilters(NameFilters(request.patterns));
  const bool saves = kind == requester_kind::kSave;
  requester.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  requester.setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  if (saves && !IsPattern(proposal, request.patterns)) requester.selectFile(proposal);
  while (requester.exec() == QDialog::Accepted) {
    const QString path = requester.Path();
    if (CanBeReached(path, kind)) return FromQt(path);
    Warn(requester,
         FromQt(path) + "\nThere is no such file or folder, or its name is no UTF-8 text.");
  }
  return {};
}

}  // namespace mardel
