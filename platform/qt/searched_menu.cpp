#include "platform/qt/searched_menu.h"

#include <QKeyEvent>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace mardel {
namespace {

constexpr qint64 kOneWord = 1000;  // milliseconds between its letters

}  // namespace

searched_menu::searched_menu(const QString& title, QWidget& owner) : QMenu(title, &owner) {
  setToolTipsVisible(true);
}

void searched_menu::keyPressEvent(QKeyEvent* happened) {
  const QString letter = happened->text();
  const bool is_plain = (happened->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
  const bool goes_on = since_last_.isValid() && !since_last_.hasExpired(kOneWord);
  if (!goes_on) typed_.clear();
  if (!is_plain || letter.isEmpty() || !letter[0].isPrint() || (letter == u" " && !goes_on)) {
    QMenu::keyPressEvent(happened);
    return;
  }
  since_last_.start();
  Search(letter);
}

// A letter that leads nowhere, such as one typed again, starts anew behind the entry it is at.
void searched_menu::Search(const QString& letter) {
  const qsizetype at = std::max<qsizetype>(actions().indexOf(activeAction()), 0);
  typed_ += letter;
  QAction* found = FindEntry(typed_, at);
  if (found == nullptr || typed_ == letter) {
    typed_ = letter;
    found = FindEntry(typed_, activeAction() == nullptr ? 0 : at + 1);
  }
  if (found != nullptr) setActiveAction(found);
}

QAction* searched_menu::FindEntry(const QString& typed, qsizetype start) const {
  const QList<QAction*> entries = actions();
  for (qsizetype i = 0; i < entries.size(); ++i) {
    QAction* const entry = entries[(start + i) % entries.size()];
    const QString text = entry->text().replace("&&"_L1, "&"_L1);
    if (text.startsWith(typed, Qt::CaseInsensitive)) return entry;
  }
  return nullptr;
}

}  // namespace mardel
