// A menu in which typing goes to the entry that begins so.
#pragma once

#include <QElapsedTimer>
#include <QMenu>

namespace mardel {

class searched_menu : public QMenu {
 public:
  searched_menu(const QString& title, QWidget& owner);

 protected:
  void keyPressEvent(QKeyEvent* happened) override;

 private:
  // The first entry from `start` on, round the end, that begins with `typed`; null for none.
  QAction* FindEntry(const QString& typed, qsizetype start) const;
  void Search(const QString& letter);

  QString typed_;
  QElapsedTimer since_last_;
};

}  // namespace mardel
