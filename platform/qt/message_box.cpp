#include "platform/qt/message_box.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <algorithm>

#include "platform/process.h"
#include "platform/qt/qt_text.h"
#include "platform/text.h"

namespace mardel {
namespace {

// A tool's output as far as it is kept, and what is said of it. To wrap a word takes the square of
// its length.
constexpr std::size_t kMostBytes = kMostToolOutput + 4096;
constexpr qsizetype kMostLines = 20;
constexpr qsizetype kMostCharacters = 1500;
constexpr qsizetype kLongestWord = 100;

QMessageBox::Icon IconOf(message_icon icon) {
  switch (icon) {
    case message_icon::kCaution:
      return QMessageBox::Warning;
    case message_icon::kNote:
      return QMessageBox::Information;
    case message_icon::kStop:
      break;
  }
  return QMessageBox::Critical;
}

// So long that a box would be larger than the screen; a word that can't wrap counts as lines do.
bool IsLong(const QString& text) {
  if (text.size() > kMostCharacters || text.count('\n') >= kMostLines) return true;
  qsizetype word = 0;
  return std::any_of(text.begin(), text.end(), [&word](QChar c) {
    word = c.isSpace() ? 0 : word + 1;
    return word > kLongestWord;
  });
}

// Takes the place of the box's own text.
void AddScrollingText(QMessageBox& box, const QString& text) {
  auto* const output = new QPlainTextEdit(&box);
  output->setReadOnly(true);
  output->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  output->setPlainText(text);
  output->setMinimumSize(560, 320);
  // The end of a tool's output is where it says what went wrong.
  output->moveCursor(QTextCursor::End);
  auto* const layout = dynamic_cast<QGridLayout*>(box.layout());
  layout->addWidget(output, 0, layout->columnCount() - 1);
}

QMessageBox::StandardButtons ButtonsOf(message_buttons buttons) {
  switch (buttons) {
    case message_buttons::kYesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case message_buttons::kYesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case message_buttons::kOk:
      break;
  }
  return QMessageBox::Ok;
}

answer AnswerOf(int button) {
  switch (button) {
    case QMessageBox::Yes:
      return answer::kYes;
    case QMessageBox::No:
      return answer::kNo;
    case QMessageBox::Cancel:
      return answer::kCancel;
    default:
      return answer::kOk;
  }
}

}  // namespace

answer ShowMessageBox(QWidget* owner, const message& shown) {
  const QString text = LinesToQt(CutMiddle(shown.text, kMostBytes));
  QMessageBox box(owner);
  box.setIcon(IconOf(shown.icon));
  box.setWindowTitle(TitleText(shown.title));
  box.setTextFormat(Qt::PlainText);
  box.setStandardButtons(ButtonsOf(shown.buttons));
  if (IsLong(text)) {
    AddScrollingText(box, text);
  } else {
    box.setText(text);
  }
  // Closing the box must change nothing.
  if (shown.buttons == message_buttons::kYesNo) {
    box.setEscapeButton(QMessageBox::No);
    box.setDefaultButton(QMessageBox::No);
  }
  return AnswerOf(box.exec());
}

}  // namespace mardel
