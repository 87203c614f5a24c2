#include "platform/qt/message_box.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextEdit>
#include <cmath>

#include "platform/process.h"
#include "platform/qt/qt_text.h"
#include "platform/text.h"

namespace mardel {
namespace {

// A tool's output as far as it is kept, and what is said of it. To wrap a word takes the square of
// its length.
constexpr std::size_t kMostBytes = kMostToolOutput + kMostToolErrors + 4096;
constexpr qsizetype kMostLines = 20;
constexpr qsizetype kMostPlainCharacters = 1500;
constexpr int kWidestRow = 80;  // of average characters

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

// So long that a box would be larger than the screen.
bool IsLong(const QString& text) {
  return text.size() > kMostPlainCharacters || text.count(u'\n') >= kMostLines;
}

QWidget* ScrollingText(const QString& text) {
  auto* const output = new QPlainTextEdit;
  output->setReadOnly(true);
  output->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  output->setPlainText(text);
  output->setMinimumSize(560, 320);
  // The end of a tool's output is where it says what went wrong.
  QScrollBar* const bar = output->verticalScrollBar();
  QObject::connect(bar, &QScrollBar::rangeChanged, bar,
                   [bar](int /*least*/, int most) { bar->setValue(most); });
  return output;
}

// Looks like a label, but breaks a path that has no blank, and is copied from without the breaks.
QWidget* WholeText(const QString& text) {
  auto* const shown = new QTextEdit;
  shown->ensurePolished();  // before its font is asked for
  shown->setReadOnly(true);
  shown->setFrameShape(QFrame::NoFrame);
  shown->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  shown->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  QPalette colours = shown->palette();
  colours.setColor(QPalette::Base, Qt::transparent);
  colours.setColor(QPalette::Text, colours.color(QPalette::WindowText));
  shown->setPalette(colours);
  shown->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  shown->setPlainText(text);
  QTextDocument& laid_out = *shown->document();
  laid_out.setTextWidth(kWidestRow * shown->fontMetrics().averageCharWidth());
  laid_out.setTextWidth(std::ceil(laid_out.idealWidth()));
  shown->setFixedSize(laid_out.size().toSize() + QSize(1, 1));
  return shown;
}

// In the place of the box's own label, whose text can't be selected and wraps at blanks only.
void AddText(QMessageBox& box, const QString& text) {
  QWidget* const shown = IsLong(text) ? ScrollingText(text) : WholeText(text);
  shown->setAccessibleName(text);
  box.setAccessibleDescription(text);
  auto* const layout = dynamic_cast<QGridLayout*>(box.layout());
  if (layout == nullptr) {
    delete shown;
    return box.setText(text);
  }
  layout->addWidget(shown, 0, layout->columnCount() - 1);
  QAbstractButton* const answers =
      box.defaultButton() == nullptr ? box.buttons().constFirst() : box.defaultButton();
  answers->setFocus();
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
  // Closing the box must change nothing.
  if (shown.buttons == message_buttons::kYesNo) {
    box.setEscapeButton(QMessageBox::No);
    box.setDefaultButton(QMessageBox::No);
  }
  AddText(box, text);
  return AnswerOf(box.exec());
}

}  // namespace mardel
