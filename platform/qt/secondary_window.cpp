#include "platform/qt/secondary_window.h"

#include <QCloseEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "platform/qt/gadget_widgets.h"
#include "platform/qt/qt_text.h"

namespace mardel {
namespace {

constexpr int kScreenMargin = 60;  // for the desktop's panels and the window's frame

bool IsLabel(const gadget& described) {
  return described.kind == gadget_kind::kLabel || described.kind == gadget_kind::kRightLabel ||
         described.kind == gadget_kind::kCentredLabel;
}

bool TakesText(const gadget& described) {
  return described.kind == gadget_kind::kTextField || described.kind == gadget_kind::kEditor;
}

// The label that stands left of a field, which says what the field is for; null for none.
const gadget* LabelOf(const window& contents, const gadget& field) {
  const gadget* nearest = nullptr;
  for (const gadget& each : contents.gadgets) {
    const bool is_beside = IsLabel(each) && each.place.x < field.place.x &&
                           each.place.y < field.place.y + field.place.height &&
                           field.place.y < each.place.y + each.place.height;
    if (is_beside && (nearest == nullptr || each.place.x > nearest->place.x)) nearest = &each;
  }
  return nearest;
}

void BindLabel(QWidget& label, QWidget& field) {
  auto* const shown = dynamic_cast<QLabel*>(&label);
  // The toolkit takes "&" in the text of a bound label for a mnemonic.
  if (shown != nullptr && !shown->text().contains('&')) shown->setBuddy(&field);
}

int BottomOf(const window& contents) {
  std::int64_t bottom = contents.height;
  for (const gadget& each : contents.gadgets) {
    bottom = std::max(bottom, each.place.y + each.place.height + 1);
  }
  return static_cast<int>(bottom);
}

}  // namespace

secondary_window::secondary_window(const mardel::window& contents, QWidget& owner,
                                   secondary_window_sink heard)
    : QDialog(&owner), heard_(std::move(heard)) {
  setWindowTitle(TitleText(contents.title));
  AddGadgets(contents, MakeBody(contents));
}

// The gadgets stand in the window itself, or in a scroll area when they or the window are too high.
QWidget& secondary_window::MakeBody(const mardel::window& contents) {
  const int room = parentWidget()->screen()->availableGeometry().height() - kScreenMargin;
  const int inner_height = BottomOf(contents);
  const int outer_height = std::min(contents.height, room);
  if (inner_height <= outer_height) {
    setFixedSize(contents.width, contents.height);
    return *this;
  }
  auto* const area = new QScrollArea(this);
  auto* const body = new QWidget;
  const int bar = area->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  setFixedSize(contents.width + bar, outer_height);
  area->setGeometry(rect());
  area->setFrameShape(QFrame::NoFrame);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setFocusPolicy(Qt::NoFocus);
  body->setFixedSize(contents.width, inner_height);
  area->setWidget(body);
  return *body;
}

void secondary_window::AddGadgets(const mardel::window& contents, QWidget& body) {
  std::unordered_map<const gadget*, QWidget*> made;
  for (const gadget& described : contents.gadgets) {
    QWidget* const added = MakeGadget(described, body, contents, heard_.used);
    made.emplace(&described, added);
    if (described.id != 0) gadgets_.emplace(described.id, added);
  }
  bool has_focus = false;
  for (const gadget& described : contents.gadgets) {
    if (!TakesText(described)) continue;
    QWidget& field = *made.at(&described);
    const gadget* const label = LabelOf(contents, described);
    field.setAccessibleName(OneLine(label == nullptr ? contents.title : label->text));
    if (label != nullptr) BindLabel(*made.at(label), field);
    if (!std::exchange(has_focus, true)) field.setFocus(Qt::TabFocusReason);
  }
}

QWidget* secondary_window::Find(int gadget_id) const {
  const auto found = gadgets_.find(gadget_id);
  return found == gadgets_.end() ? nullptr : found->second;
}

void secondary_window::closeEvent(QCloseEvent* happened) {
  happened->ignore();
  heard_.close_requested();
}

}  // namespace mardel
