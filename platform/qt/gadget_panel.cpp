#include "platform/qt/gadget_panel.h"

#include <QLabel>
#include <algorithm>
#include <optional>
#include <utility>

#include "platform/qt/dialog_scale.h"
#include "platform/qt/gadget_fitting.h"
#include "platform/qt/qt_text.h"

namespace mardel {
namespace {

bool IsLabel(const gadget& described) {
  return described.kind == gadget_kind::kLabel || described.kind == gadget_kind::kRightLabel ||
         described.kind == gadget_kind::kCentredLabel;
}

bool TakesText(const gadget& described) {
  return described.kind == gadget_kind::kTextField || described.kind == gadget_kind::kEditor;
}

bool Grows(const gadget& described) {
  return described.kind == gadget_kind::kTree || described.kind == gadget_kind::kReadOnlyText;
}

bool ComesInRows(const gadget& described) {
  return IsLabel(described) || described.kind == gadget_kind::kTextField ||
         described.kind == gadget_kind::kCheckBox;
}

// The label that stands left of a field, which says what the field is for.
std::optional<std::size_t> LabelOf(const window& contents, const gadget& field) {
  std::optional<std::size_t> nearest;
  for (std::size_t i = 0; i < contents.gadgets.size(); ++i) {
    const gadget& each = contents.gadgets[i];
    const bool is_beside = IsLabel(each) && each.place.x < field.place.x &&
                           each.place.y < field.place.y + field.place.height &&
                           field.place.y < each.place.y + each.place.height;
    if (is_beside && (!nearest || each.place.x > contents.gadgets[*nearest].place.x)) nearest = i;
  }
  return nearest;
}

void BindLabel(QWidget& label, QWidget& field) {
  auto* const shown = dynamic_cast<QLabel*>(&label);
  // The toolkit takes "&" in the text of a bound label for a mnemonic.
  if (shown != nullptr && !shown->text().contains(u'&')) shown->setBuddy(&field);
}

}  // namespace

gadget_panel::gadget_panel(mardel::window contents, double scale, QWidget& owner, gadget_sink used)
    : QWidget(&owner),
      contents_(std::move(contents)),
      scale_(scale),
      used_(std::move(used)),
      made_(contents_.gadgets.size()) {
  for (std::size_t i = 0; i < contents_.gadgets.size(); ++i) {
    if (const int id = contents_.gadgets[i].id; id != 0) index_of_.emplace(id, i);
  }
}

void gadget_panel::MakeRows(int top, int bottom) {
  const int page = bottom - top;
  for (std::size_t i = 0; i < made_.size(); ++i) {
    const gadget& each = contents_.gadgets[i];
    const QRect place = Scaled(PlaceOf(each), scale_);
    if ((place.top() < bottom + page && place.bottom() > top - page) || !ComesInRows(each)) Make(i);
  }
}

void gadget_panel::MakeAll() {
  for (std::size_t i = 0; i < made_.size(); ++i) Make(i);
}

void gadget_panel::FocusFirstField() {
  const auto field = std::ranges::find_if(contents_.gadgets, TakesText);
  if (field == contents_.gadgets.end()) return;
  Make(static_cast<std::size_t>(field - contents_.gadgets.begin())).setFocus(Qt::TabFocusReason);
}

QWidget& gadget_panel::Make(std::size_t index) {
  if (made_[index] != nullptr) return *made_[index];
  const gadget& described = contents_.gadgets[index];
  QWidget* const added = MakeGadget(described, {contents_, scale_, *this}, used_);
  made_[index] = added;
  QWidget* const before = LastFocusBefore(index);
  if (before != nullptr) setTabOrder(before, added);
  Name(described, *added);
  added->show();
  return *added;
}

QWidget* gadget_panel::LastFocusBefore(std::size_t index) const {
  while (index-- > 0) {
    QWidget* const before = made_[index];
    if (before != nullptr && before->focusPolicy() != Qt::NoFocus) return before;
  }
  return nullptr;
}

void gadget_panel::Name(const gadget& described, QWidget& shown) {
  if (!TakesText(described) && !Grows(described)) return;
  const std::optional<std::size_t> label = LabelOf(contents_, described);
  shown.setAccessibleName(OneLine(label ? contents_.gadgets[*label].text : contents_.title));
  if (label) BindLabel(Make(*label), shown);
}

QWidget* gadget_panel::Find(int gadget_id) {
  const auto found = index_of_.find(gadget_id);
  return found == index_of_.end() ? nullptr : &Make(found->second);
}

const QWidget* gadget_panel::Made(int gadget_id) const {
  const auto found = index_of_.find(gadget_id);
  return found == index_of_.end() ? nullptr : made_[found->second];
}

std::string gadget_panel::Text(int gadget_id) const {
  if (const QWidget* const shown = Made(gadget_id)) return TextOf(*shown);
  const auto found = index_of_.find(gadget_id);
  return found == index_of_.end() ? std::string() : contents_.gadgets[found->second].text;
}

void gadget_panel::SetText(int gadget_id, const std::string& text) {
  if (QWidget* const shown = Find(gadget_id)) SetTextOf(*shown, text);
}

bool gadget_panel::IsChecked(int gadget_id) const {
  const QWidget* const shown = Made(gadget_id);
  if (shown != nullptr) return mardel::IsChecked(*shown);
  const auto found = index_of_.find(gadget_id);
  return found != index_of_.end() && contents_.gadgets[found->second].checked;
}

int gadget_panel::SelectedTreeItem(int gadget_id) const {
  const QWidget* const shown = Made(gadget_id);
  return shown == nullptr ? -1 : SelectedItem(*shown);
}

// Trees and texts take what there is more of, in width the rightmost.
void gadget_panel::resizeEvent(QResizeEvent* happened) {
  QWidget::resizeEvent(happened);
  if (contents_.sizing == window_sizing::kFixed) return;
  const auto right = [](const gadget& each) { return each.place.x + each.place.width; };
  std::int64_t rightmost = 0;
  for (const gadget& each : contents_.gadgets) rightmost = std::max(rightmost, right(each));
  for (std::size_t i = 0; i < made_.size(); ++i) {
    const gadget& each = contents_.gadgets[i];
    if (made_[i] == nullptr || !Grows(each)) continue;
    const int wider = right(each) == rightmost ? width() - Scaled(contents_.width, scale_) : 0;
    const int higher = height() - Scaled(contents_.height, scale_);
    made_[i]->setGeometry(Scaled(PlaceOf(each), scale_).adjusted(0, 0, wider, higher));
  }
}

int BottomOf(const window& contents) {
  std::int64_t bottom = contents.height;
  for (const gadget& each : contents.gadgets) {
    bottom = std::max(bottom, each.place.y + each.place.height + 1);
  }
  return static_cast<int>(std::min<std::int64_t>(bottom, QWIDGETSIZE_MAX));
}

}  // namespace mardel
