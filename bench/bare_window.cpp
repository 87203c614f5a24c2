// mardel_bare_window SUBMENUS COMMANDS: the least that a program with such a window does, as the
// floor of its start: menus, a canvas in a scroll area, four status fields.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollArea>
#include <QStatusBar>
#include <cstdlib>

namespace {

class bare_canvas : public QWidget {
 public:
  bare_canvas() { setFixedSize(1920, 1080); }

 protected:
  void paintEvent(QPaintEvent* happened) override {
    QPainter(this).fillRect(happened->rect(), QColor(220, 220, 220));
  }
};

void AddMenus(QMenuBar& bar, int submenus, int commands) {
  QMenu* const menu = bar.addMenu("Menu");
  for (int i = 0; i < submenus; ++i) {
    QMenu* const submenu = menu->addMenu(QString("Submenu %1").arg(i));
    const int in_this = commands / submenus + (i < commands % submenus ? 1 : 0);
    for (int k = 0; k < in_this; ++k) submenu->addAction(QString("Command %1").arg(k));
  }
}

}  // namespace

int main(int argc, char** argv) {
  // As little as Mardel asks of the session bus.
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
  QApplication application(argc, argv);
  if (argc < 3) return 2;
  QMainWindow window;
  AddMenus(*window.menuBar(), std::atoi(argv[1]), std::atoi(argv[2]));
  QScrollArea area;
  auto* const canvas = new bare_canvas;
  area.setWidget(canvas);
  window.setCentralWidget(&area);
  for (int i = 0; i < 4; ++i) window.statusBar()->addWidget(new QLabel("Status"), 1);
  window.resize(800, 600);
  window.show();
  return QApplication::exec();
}
