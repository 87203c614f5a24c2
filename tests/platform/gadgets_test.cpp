// Windows made from tables, message boxes and requesters, as a hostile text or a hasty user meets
// them.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QClipboard>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTextEdit>
#include <QTimer>
#include <QWindow>
#include <cmath>

#include "platform/qt/beside_place.h"
#include "platform/qt/gadget_fitting.h"
#include "platform/qt/secondary_window.h"
#include "tests/platform/toolkit.h"
#include "tests/support/files.h"

namespace mardel {
namespace {

gadget Make(int id, gadget_kind kind, const rectangle& place, const std::string& text) {
  return {.id = id, .kind = kind, .place = place, .text = text};
}

void Press(QWidget& target, int key, Qt::KeyboardModifiers held = Qt::NoModifier) {
  QKeyEvent sent(QEvent::KeyPress, key, held);
  QApplication::sendEvent(&target, &sent);
}

class gadgets_test : public testing::Test {
 protected:
  // Opens a window of these gadgets, hands it to `act`, and closes it.
  template <class action>
  void WithWindow(std::vector<gadget> gadgets, int height, action act) {
    const int number = desk.OpenWindow({"Window", 300, height, std::move(gadgets)});
    act(number, *Find<secondary_window>());
    desk.CloseWindow(number);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  // Hands the dialog that `ask` opens to `act`, and tells what it asked for.
  template <class dialog, class asking, class action>
  static auto With(asking ask, action act) {
    QTimer opens;
    QObject::connect(&opens, &QTimer::timeout, [&] {
      auto* const found = Find<dialog>();
      if (found == nullptr) return;
      opens.stop();
      act(*found);
    });
    opens.start(0);
    return ask();
  }

  template <class action>
  answer WithBox(const message& shown, action act) {
    return With<QMessageBox>([&] { return desk.ShowMessage(shown); }, act);
  }

  desktop& desk = SharedDesktop();
};

TEST_F(gadgets_test, DropWhatAFileCannotHold) {
  const std::vector<gadget> gadgets = {
      Make(1, gadget_kind::kTextField, {10, 10, 100, 20}, std::string(40000, 'p')),
      Make(2, gadget_kind::kEditor, {10, 40, 100, 60}, "one\xC2\xA0two\r\nthree\u2028")};
  WithWindow(gadgets, 200, [this](int number, secondary_window& made) {
    EXPECT_EQ(desk.GadgetText(number, 1), std::string(40000, 'p'));
    EXPECT_EQ(desk.GadgetText(number, 2), "one\xC2\xA0two\r\nthree\u2028");
    QApplication::clipboard()->setText(QString::fromUtf8("a\x01\n<b>\uFFFE&\u2028z"));
    for (const int id : {1, 2}) {
      desk.SetGadgetText(number, id, "");
      Press(*made.Gadgets().Find(id), Qt::Key_V, Qt::ControlModifier);
    }
    EXPECT_EQ(desk.GadgetText(number, 1), "a<b>&z");
    EXPECT_EQ(desk.GadgetText(number, 2), "a\n<b>&\nz");
    Press(*made.Gadgets().Find(2), Qt::Key_Return);
    EXPECT_EQ(desk.GadgetText(number, 2), "a\n<b>&\nz\n");
  });
}

TEST_F(gadgets_test, FollowTheKeyboard) {
  const std::vector<gadget> gadgets = {Make(0, gadget_kind::kLabel, {10, 10, 40, 20}, "Left:"),
                                       Make(1, gadget_kind::kTextField, {60, 10, 60, 20}, "old"),
                                       Make(0, gadget_kind::kRightLabel, {10, 40, 40, 20}, "R&D:"),
                                       Make(2, gadget_kind::kTextField, {60, 40, 60, 20}, ""),
                                       Make(3, gadget_kind::kDefaultButton, {10, 70, 60, 25}, "OK"),
                                       Make(4, gadget_kind::kButton, {80, 70, 60, 25}, "Cancel"),
                                       Make(5, gadget_kind::kCheckBox, {10, 99, 60, 25}, "R&D")};
  WithWindow(gadgets, 200, [this](int number, secondary_window& made) {
    std::vector<QWidget*> tabbed;
    for (QWidget* next = made.Gadgets().Find(1); tabbed.size() < 4;
         next = next->nextInFocusChain()) {
      if (next->focusPolicy() & Qt::TabFocus) tabbed.push_back(next);
    }
    EXPECT_EQ(tabbed, (std::vector{made.Gadgets().Find(1), made.Gadgets().Find(2),
                                   made.Gadgets().Find(3), made.Gadgets().Find(4)}));
    EXPECT_EQ(dynamic_cast<QLineEdit*>(made.Gadgets().Find(1))->selectedText(), "old");
    EXPECT_EQ(made.Gadgets().Find(1)->accessibleName(), "Left:");
    EXPECT_EQ(made.Gadgets().Find(2)->accessibleName(), "R&D:");
    for (const auto* label : made.findChildren<QLabel*>()) {
      const bool is_literal = label->text().contains('&');
      EXPECT_EQ(label->buddy(), is_literal ? nullptr : made.Gadgets().Find(1));
    }
    std::vector<QString> pressed;
    for (const int id : {3, 4}) {
      auto* const button = dynamic_cast<QPushButton*>(made.Gadgets().Find(id));
      QObject::connect(button, &QPushButton::clicked,
                       [&, button] { pressed.push_back(button->text()); });
    }
    Press(*made.Gadgets().Find(2), Qt::Key_Return);
    made.Gadgets().Find(4)->setFocus();
    Press(*made.Gadgets().Find(4), Qt::Key_Return);
    EXPECT_EQ(pressed, (std::vector<QString>{"OK", "Cancel"}));
    auto* const box = dynamic_cast<QCheckBox*>(made.Gadgets().Find(5));
    EXPECT_EQ(box->text(), "R&&D");  // as the toolkit writes a literal "&"
    EXPECT_FALSE(desk.GadgetChecked(number, 5));
    box->click();
    EXPECT_TRUE(desk.GadgetChecked(number, 5));
  });
}

TEST_F(gadgets_test, AreMadeAsTheyComeIntoSight) {
  const std::int64_t screen = QGuiApplication::primaryScreen()->availableGeometry().height();
  std::vector<gadget> gadgets;
  for (int i = 0; i < 20'000; i += 2) {
    gadgets.push_back(Make(i + 1, gadget_kind::kTextField, {100, 20 * i, 60, 20}, "a\nb"));
    gadgets.push_back(Make(i + 2, gadget_kind::kCheckBox, {10, 20 * i, 60, 20}, ""));
  }
  gadgets.push_back(Make(30'000, gadget_kind::kButton, {10, 400'000, 60, 25}, "OK"));
  WithWindow(gadgets, 400'100, [&](int number, secondary_window& made) {
    EXPECT_EQ(made.width(), 300);
    EXPECT_LE(made.height(), screen);
    EXPECT_LT(made.findChildren<QWidget*>().size(), screen);
    EXPECT_EQ(desk.GadgetText(number, 19'999), "a\nb");  // as it is, made or not
    EXPECT_EQ(desk.GadgetText(number, 1), "a\nb");
    EXPECT_FALSE(desk.GadgetChecked(number, 20'000));
    // By Tab, and back from the end, to the next in the table.
    QWidget* at = made.focusWidget();
    for (int i = 1; i < 200; ++i) {
      EXPECT_EQ(at, made.Gadgets().Find(i)) << i;
      Press(*at, Qt::Key_Tab);
      at = made.focusWidget();
      EXPECT_FALSE(at->visibleRegion().isEmpty()) << i;
    }
    made.Gadgets().Find(1)->setFocus();
    Press(*made.focusWidget(), Qt::Key_Backtab);
    EXPECT_EQ(made.focusWidget(), made.Gadgets().Find(30'000));
    Press(*made.focusWidget(), Qt::Key_Backtab);
    auto* const last = dynamic_cast<QCheckBox*>(made.focusWidget());
    ASSERT_NE(last, nullptr);
    last->click();
    EXPECT_TRUE(desk.GadgetChecked(number, 20'000));
  });
}

TEST_F(gadgets_test, GrowWithTheFontOfTheDesktop) {
  const QFont usual = QApplication::font();
  const std::pair<int, double> cases[] = {{9, 1.0}, {10, 1.0}, {14, 1.4}, {18, 1.8}};
  for (const auto& [points, factor] : cases) {
    QFont font = usual;
    font.setPointSize(points);
    QApplication::setFont(font);
    const std::vector<gadget> gadgets = {
        Make(1, gadget_kind::kLabel, {20, 20, 250, 25}, "What to do when you select this:"),
        Make(2, gadget_kind::kOption, {40, 40, 250, 25}, "No board")};
    WithWindow(gadgets, 200, [scale = factor](int /*number*/, secondary_window& made) {
      EXPECT_EQ(made.width(), std::lround(300 * scale));
      const auto* const label = dynamic_cast<QLabel*>(made.Gadgets().Find(1));
      EXPECT_EQ(label->text(), "What to do when you select this:");
      EXPECT_EQ(label->y(), std::lround(20 * scale));
      EXPECT_EQ(label->font().pixelSize(), static_cast<int>(16 * scale));
      EXPECT_EQ(label->font().family(), "Arial Narrow");
    });
  }
  QApplication::setFont(usual);
}

TEST_F(gadgets_test, WorkWhileTheMainWindowIsDisabled) {
  const std::vector<gadget> gadgets = {Make(1, gadget_kind::kTextField, {10, 10, 99, 20}, "")};
  const int earlier = desk.OpenWindow({"Directory", 200, 100, gadgets, window_modality::kModeless});
  desk.DisableMainWindow();
  EXPECT_FALSE(Find<QMainWindow>()->isEnabled());
  const int number = desk.OpenWindow({"Modal", 200, 100, gadgets});
  const auto windows = Find<QMainWindow>()->findChildren<QDialog*>();
  for (const auto* each : windows) EXPECT_TRUE(each->isEnabled());
  ASSERT_EQ(windows.size(), 2);
  EXPECT_EQ(windows[1]->windowHandle()->transientParent(), windows[0]->windowHandle());
  WithBox({"T", "x"}, [](QMessageBox& box) {
    EXPECT_TRUE(box.isEnabled());
    box.close();
  });
  desk.CloseWindow(number);
  desk.CloseWindow(earlier);
  desk.EnableMainWindow();
  EXPECT_TRUE(Find<QMainWindow>()->isEnabled());
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

TEST_F(gadgets_test, GrowIntoTheFreeRoomOfTheirRow) {
  window contents{"W", 300, 200, {}};
  contents.gadgets = {Make(0, gadget_kind::kLabel, {50, 10, 20, 20}, ""),
                      Make(0, gadget_kind::kTextField, {100, 10, 50, 20}, ""),
                      Make(0, gadget_kind::kRightLabel, {180, 10, 20, 20}, ""),
                      Make(0, gadget_kind::kCentredLabel, {140, 50, 20, 20}, ""),
                      Make(0, gadget_kind::kLabel, {25, 85, 50, 20}, ""),
                      Make(0, gadget_kind::kCheckBox, {50, 80, 100, 25}, ""),
                      Make(0, gadget_kind::kOption, {50, 100, 100, 25}, "")};
  struct fitting_case {
    std::size_t gadget;
    int wanted, left, width;
  };
  const fitting_case cases[] = {{0, 10, 50, 20},   {0, 40, 50, 40},   {0, 60, 38, 60},
                                {0, 999, 10, 88},  {2, 40, 160, 40},  {2, 999, 152, 138},
                                {3, 120, 90, 120}, {3, 999, 10, 280}, {4, 10, 25, 23},
                                {5, 150, 50, 150}, {6, 240, 50, 240}, {6, 999, 10, 280}};
  for (const fitting_case& each : cases) {
    const QRect place = FittingPlace(contents, contents.gadgets.at(each.gadget), each.wanted);
    EXPECT_EQ(place.left(), each.left) << each.gadget << " " << each.wanted;
    EXPECT_EQ(place.width(), each.width) << each.gadget << " " << each.wanted;
  }
}

TEST_F(gadgets_test, PlaceAWindowBesideWhatItIsAbout) {
  const QRect screen(0, 0, 1000, 800);
  // With a frame of 8 pixels at the sides and below, and of 36 above.
  const std::pair<QRect, QPoint> cases[] = {{{100, 300, 200, 100}, {300, 227}},
                                            {{600, 300, 300, 100}, {184, 227}},
                                            {{100, 10, 800, 100}, {291, 110}},
                                            {{100, 600, 800, 100}, {291, 356}}};
  for (const auto& [spared, expected] : cases) {
    EXPECT_EQ(BesidePlace(spared, {400, 200}, screen), expected);
  }
}

TEST_F(gadgets_test, BoxesAnswerEscapeByWhatChangesNothing) {
  const std::pair<message_buttons, answer> cases[] = {
      {message_buttons::kOk, answer::kOk},
      {message_buttons::kYesNo, answer::kNo},
      {message_buttons::kYesNoCancel, answer::kCancel}};
  for (const auto& [buttons, expected] : cases) {
    const message shown{"[*]", "<b>x</b> &y\rz\xFF", buttons, message_icon::kCaution};
    const answer given = WithBox(shown, [](QMessageBox& box) {
      EXPECT_EQ(box.windowTitle(), "[*][*]");
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      EXPECT_EQ(box.findChild<QTextEdit*>()->toPlainText(),
                QString::fromUtf8("<b>x</b> &y\nz\uFFFD"));
      EXPECT_EQ(box.icon(), QMessageBox::Warning);
      Press(box, Qt::Key_Escape);
    });
    EXPECT_EQ(given, expected);
  }
}

TEST_F(gadgets_test, BoxesOfLongTextsFitTheScreen) {
  std::string lines;
  for (int i = 0; i < 10000; ++i) lines += "line\r\n";
  WithBox({"T", "No file /" + std::string(800, 'y')}, [](QMessageBox& box) {
    EXPECT_EQ(box.findChild<QPlainTextEdit*>(), nullptr);
    EXPECT_LE(box.width(), QGuiApplication::primaryScreen()->availableSize().width());
    Press(box, Qt::Key_Return);
  });
  for (const std::string& text : {lines, std::string(4000, 'x')}) {
    WithBox({"T", text}, [&text](QMessageBox& box) {
      const QSize room = QGuiApplication::primaryScreen()->availableSize();
      EXPECT_LE(box.height(), room.height());
      EXPECT_LE(box.width(), room.width());
      auto* const shown = box.findChild<QPlainTextEdit*>();
      ASSERT_NE(shown, nullptr);
      EXPECT_TRUE(shown->isReadOnly());
      EXPECT_EQ(shown->verticalScrollBar()->value(), shown->verticalScrollBar()->maximum());
      EXPECT_GE(shown->toPlainText().size() + 10000, static_cast<qsizetype>(text.size()));
      Press(box, Qt::Key_Return);
    });
  }
}

// A block's description can be one word as long as its file.
TEST_F(gadgets_test, TextsBreakAnywhereAroundHugeWords) {
  const std::string word(10'000, 'x');
  const std::pair<std::string, QTextOption::WrapMode> cases[] = {
      {word + "x", QTextOption::WrapAnywhere},
      {word + " x", QTextOption::WrapAtWordBoundaryOrAnywhere}};
  WithWindow({Make(1, gadget_kind::kReadOnlyText, {0, 0, 200, 60}, "")}, 80,
             [&](int number, secondary_window& shown) {
               for (const auto& [text, mode] : cases) {
                 desk.SetGadgetText(number, 1, text);
                 EXPECT_EQ(shown.findChild<QPlainTextEdit*>()->wordWrapMode(), mode);
               }
             });
}

// A library's name can be as long as its file; laid out whole it would hang the start.
TEST_F(gadgets_test, BoxesShowTheBeginningAndTheEndOfAHugeText) {
  WithBox({"T", "first " + std::string(5'000'000, 'x') + " last"}, [](QMessageBox& box) {
    // 6 bytes of "first " and 5 of " last" around the x; a half is 86,016 / 2 bytes.
    EXPECT_EQ(box.findChild<QPlainTextEdit*>()->toPlainText().toStdString(),
              "first " + std::string(43'002, 'x') + "[... 4913995 bytes left out ...]" +
                  std::string(43'003, 'x') + " last");
    Press(box, Qt::Key_Return);
  });
}

TEST_F(gadgets_test, RequestersTakeNamesAsTheyAre) {
  const scratch_folder folder;
  for (const std::string name : {"7\"tap.mrd", "st*r.mrd", "wh?t.mrd", "plain.mrd"}) {
    const std::string path = folder.Path() + name;
    const std::string given = With<QFileDialog>(
        [&] { return desk.AskSaveFile({"T", path, "Mardel file (*.mrd)|*.mrd"}); },
        [&](QFileDialog& requester) {
          EXPECT_EQ(requester.findChild<QLineEdit*>("fileNameEdit")->text().toStdString(), name);
          Press(*requester.findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
        });
    EXPECT_EQ(given, path);
  }
  // A pattern is no name; and to open, of a name that is no file a box tells.
  bool is_told = false;
  const auto name_nothing = [](QFileDialog& requester) {
    EXPECT_EQ(requester.findChild<QLineEdit*>("fileNameEdit")->text(), "");
    requester.reject();
  };
  const auto name_none = [&](QFileDialog& requester) {
    auto* const name = requester.findChild<QLineEdit*>("fileNameEdit");
    name->setText("none.mrd");
    With<QMessageBox>([&] { Press(*name, Qt::Key_Return); },
                      [&](QMessageBox& told) {
                        is_told = true;
                        told.close();
                      });
    requester.reject();
  };
  const file_request request{"T", folder.Path() + "*.mrd", "Mardel file (*.mrd)|*.mrd"};
  EXPECT_EQ(With<QFileDialog>([&] { return desk.AskSaveFile(request); }, name_nothing), "");
  EXPECT_EQ(With<QFileDialog>([&] { return desk.AskOpenFile(request); }, name_none), "");
  EXPECT_TRUE(is_told);
}

TEST_F(gadgets_test, CheckMarksAreTheProgramsOwn) {
  menu_item deep{menu_item_kind::kSubmenu, "Deep", 0, "", menu_role::kNone, {}};
  deep.items.push_back({menu_item_kind::kCheckable, "Grid", 7, "", menu_role::kNone, {}});
  desk.SetMenuBar({{"Edit", {deep}}});
  desk.CheckMenuItem(7, true);
  QMenu* const submenu =
      Find<QMainWindow>()->menuBar()->actions().at(0)->menu()->actions().at(0)->menu();
  emit submenu->aboutToShow();
  QAction* const grid = submenu->actions().at(0);
  EXPECT_TRUE(grid->isChecked());
  grid->trigger();
  EXPECT_TRUE(grid->isChecked());
  desk.CheckMenuItem(7, false);
  EXPECT_FALSE(grid->isChecked());
}

}  // namespace
}  // namespace mardel
