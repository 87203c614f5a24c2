#include "platform/qt/menu_bar.h"

#include <QMenu>
#include <QMenuBar>
#include <QProxyStyle>
#include <QScreen>
#include <QShortcut>
#include <utility>

#include "platform/qt/qt_text.h"
#include "platform/qt/searched_menu.h"
#include "platform/text.h"

using namespace Qt::StringLiterals;

namespace mardel {
namespace {

constexpr std::size_t kMostText = 120;  // bytes of one item
constexpr qsizetype kFewItems = 20;     // fit a screen
constexpr qsizetype kManyItems = 200;   // fit none, and are not worth measuring

// Long menus scroll, where the style would make them wider than the screen.
class scrolling_menu_style : public QProxyStyle {
 public:
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* result) const override {
    return hint == SH_Menu_Scrollable ? 1 : QProxyStyle::styleHint(hint, option, widget, result);
  }
};

// For a filled menu, before it is shown.
void KeepOnScreen(QMenu& filled) {
  const qsizetype count = filled.actions().size();
  if (count < kFewItems) return;
  const int room = filled.screen()->availableSize().width();
  if (count <= kManyItems && filled.sizeHint().width() <= room) return;
  auto* const style = new scrolling_menu_style;
  style->setParent(&filled);
  filled.setStyle(style);
}

QAction::MenuRole RoleOf(menu_role role) {
  switch (role) {
    case menu_role::kAbout:
      return QAction::AboutRole;
    case menu_role::kPreferences:
      return QAction::PreferencesRole;
    case menu_role::kQuit:
      return QAction::QuitRole;
    case menu_role::kNone:
      break;
  }
  return QAction::NoRole;
}

// Of a long name its beginning and its end: a menu much wider than the screen is not shown at all.
QString MenuText(const std::string& text) {
  return ButtonText(CutMiddle(text, kMostText));
}

// The shortcut's label stays behind its tab; a tab in any other text is a blank.
QString CommandText(const menu_item& described) {
  const std::size_t tab = described.text.find('\t');
  if (described.shortcut.empty() || tab == std::string::npos) return MenuText(described.text);
  return ButtonText(described.text.substr(0, tab)) + u'\t' +
         ButtonText(described.text.substr(tab + 1));
}

}  // namespace

menu_bar::menu_bar(QMainWindow& owner, std::function<void(int id)> chosen)
    : owner_(owner), chosen_(std::move(chosen)) {}

void menu_bar::Set(const std::vector<menu>& menus) {
  auto* const bar = new QMenuBar;
  owner_.setMenuBar(bar);  // deletes the one before when the event loop runs again
  checkable_.clear();
  menus_ = std::make_shared<const std::vector<menu>>(menus);
  for (const menu& described : *menus_) {
    auto* const added = bar->addMenu(ButtonText(described.title));
    Fill(*added, described.items);
    KeepOnScreen(*added);
  }
  if (!bar->actions().isEmpty()) {
    auto* const opens = new QShortcut(QKeySequence(Qt::Key_F10), bar);
    QObject::connect(opens, &QShortcut::activated, bar,
                     [bar] { bar->setActiveAction(bar->actions().constFirst()); });
  }
}

void menu_bar::Check(int id, bool checked) {
  checked_[id] = checked;
  const auto found = checkable_.find(id);
  if (found != checkable_.end()) found->second->setChecked(checked);
}

void menu_bar::AddShortcut(const std::string& key, int id) {
  auto* const added = new QShortcut(QKeySequence(ToQt(key)), &owner_);
  QObject::connect(added, &QShortcut::activated, &owner_, [this, id] { chosen_(id); });
}

void menu_bar::Fill(QMenu& target, const std::vector<menu_item>& items) {
  for (const menu_item& described : items) {
    switch (described.kind) {
      case menu_item_kind::kSeparator:
        target.addSeparator();
        break;
      case menu_item_kind::kSubmenu:
        AddSubmenu(target, described);
        break;
      case menu_item_kind::kCommand:
      case menu_item_kind::kCheckable:
        AddCommand(target, described);
        break;
    }
  }
}

void menu_bar::AddSubmenu(QMenu& target, const menu_item& described) {
  auto* const added = new searched_menu(MenuText(described.text), target);
  target.addMenu(added);
  // A menu bar that is about to be deleted can still be shown.
  QObject::connect(added, &QMenu::aboutToShow, added, [this, added, &described, kept = menus_] {
    if (!added->isEmpty()) return;
    Fill(*added, described.items);
    KeepOnScreen(*added);
  });
}

void menu_bar::AddCommand(QMenu& target, const menu_item& described) {
  auto* const added = target.addAction(CommandText(described));
  added->setMenuRole(RoleOf(described.role));
  added->setToolTip(TooltipText(described.tooltip));
  if (!described.shortcut.empty()) added->setShortcut(QKeySequence(ToQt(described.shortcut)));
  // What desktops have agreed on; the toolkit knows it on some of them only.
  if (described.role == menu_role::kQuit) added->setShortcut(QKeySequence(u"Ctrl+Q"_s));
  const int id = described.id;
  if (described.kind == menu_item_kind::kCheckable) {
    added->setCheckable(true);
    added->setChecked(checked_[id]);
    checkable_[id] = added;
  }
  QObject::connect(added, &QAction::triggered, &owner_, [this, added, id] {
    // The program says what is checked.
    if (added->isCheckable()) added->setChecked(!added->isChecked());
    chosen_(id);
  });
}

}  // namespace mardel
