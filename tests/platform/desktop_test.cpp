// Drives the real window on the toolkit's offscreen platform.
#include "platform/desktop.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QFileOpenEvent>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollBar>
#include <QTimer>
#include <QUrl>
#include <variant>

#include "platform/qt/canvas.h"
#include "platform/qt/secondary_window.h"
#include "tests/platform/toolkit.h"
#include "tests/support/files.h"

namespace mardel {
namespace {

const char* const kNasty = "<b>R&D</b>";

// What of an event tells it from others of its kind.
std::string Describe(const event& happened) {
  struct teller {
    std::string operator()(const menu_chosen& e) { return "menu " + std::to_string(e.id); }
    std::string operator()(const canvas_mouse& e) {
      return "mouse " + std::to_string(static_cast<int>(e.action)) + " at " +
             std::to_string(e.at.x) + "," + std::to_string(e.at.y);
    }
    std::string operator()(const canvas_wheel& e) {
      return "wheel " + std::to_string(e.tenths.x) + "," + std::to_string(e.tenths.y);
    }
    std::string operator()(const canvas_arrow& e) {
      return "arrow " + std::to_string(e.direction.x) + "," + std::to_string(e.direction.y) +
             (e.with_shift ? " shift" : "");
    }
    std::string operator()(const canvas_shortcut& e) {
      return "shortcut " + std::to_string(static_cast<int>(e.what));
    }
    std::string operator()(const files_dropped& e) { return "dropped " + e.paths.front(); }
    std::string operator()(const canvas_key& e) { return "key " + std::to_string(e.code); }
    std::string operator()(const canvas_interrupted&) { return "interrupted"; }
    std::string operator()(const gadget_used& e) { return "gadget " + std::to_string(e.gadget); }
    std::string operator()(const window_close_requested&) { return "close window"; }
    std::string operator()(const main_window_resized&) { return "resized"; }
    std::string operator()(const main_window_close_requested&) { return "close"; }
  };
  return std::visit(teller{}, happened);
}

using strings = std::vector<std::string>;

// One window for all tests, as the toolkit has it.
class desktop_test : public testing::Test {
 protected:
  // What the program hears while `act` runs in the event loop.
  template <class action>
  strings Hear(action act) {
    strings heard;
    QTimer::singleShot(0, [&] {
      act();
      QApplication::exit(0);
    });
    desk.Run([&](const event& e) {
      if (!std::holds_alternative<main_window_resized>(e)) heard.push_back(Describe(e));
      return true;
    });
    return heard;
  }

  static void Mouse(QEvent::Type type, QPointF at, Qt::MouseButton button) {
    canvas* const target = Find<canvas>();
    QMouseEvent sent(type, at, target->mapToGlobal(at), button, button, Qt::NoModifier);
    QApplication::sendEvent(target, &sent);
  }

  static void Key(QWidget* target, int key, Qt::KeyboardModifiers held = Qt::NoModifier) {
    QKeyEvent sent(QEvent::KeyPress, key, held);
    QApplication::sendEvent(target, &sent);
  }

  static void Wheel(QPoint turned, Qt::KeyboardModifiers held = Qt::NoModifier) {
    QWheelEvent sent({}, {}, {}, turned, Qt::NoButton, held, Qt::NoScrollPhase, false);
    QApplication::sendEvent(Find<canvas>(), &sent);
  }

  desktop& desk = SharedDesktop();
};

TEST_F(desktop_test, DeliversMouseAndKeysOnce) {
  const strings heard = Hear([] {
    Mouse(QEvent::MouseButtonPress, {5, 6}, Qt::LeftButton);
    Mouse(QEvent::MouseMove, {-7, 2000}, Qt::NoButton);
    Mouse(QEvent::MouseButtonRelease, {9, 10}, Qt::LeftButton);
    Mouse(QEvent::MouseButtonDblClick, {9, 10}, Qt::LeftButton);
    QFocusEvent lost(QEvent::FocusOut);
    QApplication::sendEvent(Find<canvas>(), &lost);
    Mouse(QEvent::MouseButtonRelease, {9, 10}, Qt::LeftButton);
    Mouse(QEvent::MouseButtonPress, {1, 2}, Qt::RightButton);
    Mouse(QEvent::MouseButtonRelease, {1, 2}, Qt::RightButton);
    Mouse(QEvent::MouseButtonPress, {1, 2}, Qt::LeftButton);
    QHideEvent hidden;
    QApplication::sendEvent(Find<canvas>(), &hidden);
    Key(Find<canvas>(), Qt::Key_Backspace);
    Key(Find<canvas>(), Qt::Key_Delete);
    Key(Find<canvas>(), Qt::Key_A);
    Key(Find<canvas>(), Qt::Key_Left, Qt::ShiftModifier);
    for (int eighths = 0; eighths < 24; eighths += 6) Wheel({0, 6});
    Wheel({0, -130}, Qt::ShiftModifier);
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile("/a b.mrd")});
    QDragEnterEvent entered({}, Qt::CopyAction, &files, Qt::NoButton, Qt::NoModifier);
    QDropEvent dropped({}, Qt::CopyAction, &files, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(Find<QMainWindow>(), &entered);
    QApplication::sendEvent(Find<QMainWindow>(), &dropped);
    QFileOpenEvent open(QUrl("file:///%E9.mrd"));
    QApplication::sendEvent(qApp, &open);
  });
  EXPECT_EQ(heard, (strings{"mouse 1 at 5,6", "mouse 0 at -7,2000", "mouse 2 at 9,10",
                            "mouse 1 at 9,10", "interrupted", "mouse 3 at 1,2", "mouse 1 at 1,2",
                            "interrupted", "key 127", "key 127", "arrow -1,0 shift", "wheel 0,1",
                            "wheel 0,1", "wheel -10,0", "dropped /a b.mrd", "dropped /\xE9.mrd"}));
}

TEST_F(desktop_test, IsAliveAndDeafWhileAToolRuns) {
  const scratch_folder folder;
  const std::string sign = folder.Path() + "sign";
  const strings heard = Hear([&] {
    QTimer::singleShot(0, [&sign] {
      Key(Find<canvas>(), Qt::Key_Delete);
      WriteAll(sign, "");
    });
    const tool_result ended = desk.ToolRunner()->RunTool(
        "/bin/sh", "-c \"until [ -e " + sign + " ]; do :; done; echo bad >&2; echo out; exit 3\"");
    EXPECT_EQ(ended.output, "out\rbad\r");
  });
  EXPECT_EQ(heard, strings{});
}

TEST_F(desktop_test, TheCanvasKeepsTheKeyboard) {
  for (auto* bar : Find<QMainWindow>()->findChildren<QScrollBar*>()) {
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5), bar->mapToGlobal(QPointF(5, 5)),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(bar, &press);
  }
  Key(Find<canvas>(), Qt::Key_Tab);
  EXPECT_EQ(Find<QMainWindow>()->focusWidget(), Find<canvas>());
}

TEST_F(desktop_test, OffersTheCanvasToAScreenReader) {
  QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(Find<canvas>());
  ASSERT_EQ(told->childCount(), 2);
  EXPECT_EQ(told->child(0)->text(QAccessible::Name), "Block in 3");
  EXPECT_EQ(told->child(0)->role(), QAccessible::Graphic);
  const QPoint corner = Find<canvas>()->mapToGlobal(QPoint(20, 30));
  EXPECT_EQ(told->child(0)->rect(), QRect(corner, QSize(40, 50)));
  EXPECT_EQ(told->childAt(corner.x() + 1, corner.y() + 1), told->child(0));
  EXPECT_EQ(told->child(1)->role(), QAccessible::StaticText);
  EXPECT_TRUE(told->child(1)->state().offscreen);
}

TEST_F(desktop_test, ADragScrollsAtTheEdge) {
  auto* const shown = Find<canvas>();
  const strings heard = Hear([shown] {
    const QRect room = shown->visibleRegion().boundingRect();
    Mouse(QEvent::MouseButtonPress, room.topLeft() + QPointF(50, 50), Qt::LeftButton);
    Mouse(QEvent::MouseMove, room.topLeft() + QPointF(room.width() - 1, 99), Qt::NoButton);
    const QPoint before = shown->pos();
    while (shown->x() > before.x() - 50) {
      QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    EXPECT_EQ(shown->y(), before.y());
    Mouse(QEvent::MouseButtonRelease, {50, 50}, Qt::LeftButton);
  });
  EXPECT_GE(heard.size(), 6U);  // with a move for each time that the canvas went on below the mouse
}

TEST_F(desktop_test, HandlesOneEventAtATime) {
  strings order;
  QTimer::singleShot(0, [] { Key(Find<canvas>(), Qt::Key_Delete); });
  desk.Run([&](const event& e) {
    if (std::holds_alternative<main_window_resized>(e)) return true;
    if (!std::holds_alternative<canvas_key>(e)) {
      order.push_back(Describe(e));
      return false;
    }
    QTimer box_opens;
    QObject::connect(&box_opens, &QTimer::timeout, [] {
      auto* const box = Find<QMessageBox>();
      if (box == nullptr) return;
      Find<QMainWindow>()->close();
      box->close();
    });
    box_opens.start(0);
    const answer given = desk.ShowMessage({"T", kNasty, message_buttons::kYesNo});
    order.emplace_back(given == answer::kNo ? "box closed: no" : "box closed: yes");
    return true;
  });
  EXPECT_EQ(order, (strings{"box closed: no", "close"}));
}

TEST_F(desktop_test, MakesMenusLiteralAndLate) {
  menu_item late{menu_item_kind::kSubmenu, kNasty, 0, "", menu_role::kNone, {}};
  late.items.push_back({menu_item_kind::kCommand, "a\tb", 7, "", menu_role::kNone, {}});
  late.items.push_back(
      {menu_item_kind::kCommand, std::string(300, 'x'), 8, "", menu_role::kNone, {}});
  desk.SetMenuBar({{"Li&b", {late}}});
  QAction* const title = Find<QMainWindow>()->menuBar()->actions().at(0);
  EXPECT_EQ(title->text().toStdString(), "Li&&b");
  ASSERT_NE(title->menu(), nullptr);
  ASSERT_EQ(title->menu()->actions().size(), 1);
  QMenu* const submenu = title->menu()->actions().at(0)->menu();
  ASSERT_NE(submenu, nullptr);
  EXPECT_EQ(submenu->title().toStdString(), "<b>R&&D</b>");
  EXPECT_TRUE(submenu->isEmpty());
  const strings heard = Hear([submenu] {
    emit submenu->aboutToShow();
    emit submenu->aboutToShow();
    ASSERT_EQ(submenu->actions().size(), 2);
    EXPECT_EQ(submenu->actions().at(0)->text(), "a b");
    EXPECT_EQ(submenu->actions().at(1)->text().toStdString(),
              std::string(60, 'x') + "[... 180 bytes left out ...]" + std::string(60, 'x'));
    submenu->actions().at(0)->trigger();
  });
  EXPECT_EQ(heard, strings{"menu 7"});
}

TEST_F(desktop_test, KeepsLongMenusOnTheScreen) {
  const auto items = [](std::size_t count, std::size_t length) {
    menu_item item;
    item.text = std::string(length, 'x');
    return std::vector<menu_item>(count, item);
  };
  desk.SetMenuBar({{"Many", items(1000, 6)}, {"Long", items(150, 40)}, {"Few", items(20, 40)}});
  for (const QAction* title : Find<QMainWindow>()->menuBar()->actions()) {
    QMenu* const shown = title->menu();
    emit shown->aboutToShow();
    EXPECT_LE(shown->sizeHint().width(), shown->screen()->availableSize().width())
        << title->text().toStdString();
  }
}

TEST_F(desktop_test, LeavesTheClosingOfAWindowToTheProgram) {
  const window contents{
      "W[*]",
      300,
      200,
      {{.id = 3, .kind = gadget_kind::kTextField, .place = {70, 10, 100, 20}, .text = ""},
       {.id = 1, .kind = gadget_kind::kDefaultButton, .place = {9, 400, 80, 25}, .text = "OK"}}};
  const strings heard = Hear([&] {
    const int number = desk.OpenWindow(contents);
    auto* const made = Find<secondary_window>();
    EXPECT_EQ(made->focusWidget(), made->Gadgets().Find(3));
    desk.DisableMainWindow();
    Find<QMainWindow>()->close();  // not while the window is open
    desk.EnableMainWindow();
    Key(made->Gadgets().Find(3), Qt::Key_Return);
    Key(made, Qt::Key_Escape);
    made->close();
    EXPECT_TRUE(made->isVisible());
    desk.CloseWindow(number);
  });
  EXPECT_EQ(heard, (strings{"gadget 1", "close window", "close window"}));
}

TEST_F(desktop_test, ScrollsDrawsAndPointsAsItIsTold) {
  auto* const shown = Find<canvas>();
  desk.ScrollTo({1500, 900, 60, 40});
  const QRect seen = shown->visibleRegion().boundingRect();
  EXPECT_EQ(seen.bottomRight(), QPoint(1559, 939));
  const QPoint before = shown->pos();
  desk.ScrollBy({-30, -40});
  EXPECT_EQ(shown->pos() - before, QPoint(30, 40));
  desk.ScrollTo({0, 0, 60, 40});
  EXPECT_EQ(shown->pos(), QPoint(0, 0));
  desk.ShowOverlay({overlay::shape::kRectangle, {{90, 80}, {20, 30}}, {kRed, 1.0}});
  EXPECT_EQ(shown->grab().toImage().pixel(20, 50), qRgb(255, 0, 0));
  desk.SetPointer(pointer_shape::kCross);
  EXPECT_EQ(shown->cursor().shape(), Qt::CrossCursor);
  desk.SetPointer(pointer_shape::kNormal);
}

}  // namespace
}  // namespace mardel
