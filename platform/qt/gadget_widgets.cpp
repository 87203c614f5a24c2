#include "platform/qt/gadget_widgets.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QProxyStyle>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <algorithm>
#include <cmath>

#include "platform/png.h"
#include "platform/qt/dialog_scale.h"
#include "platform/qt/gadget_fitting.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/text_entry.h"

using namespace Qt::StringLiterals;

namespace mardel {
namespace {

constexpr int kTextSlack = 2;             // what rounding may take from a text's room
constexpr int kIndexRole = Qt::UserRole;  // of a tree's item: its index in gadget::items

// Shows what fits of a text, and all of it in the tooltip.
QString Fitting(QWidget& shown, const QString& text, int room, Qt::TextElideMode mode) {
  QString fitting = shown.fontMetrics().elidedText(text, mode, room);
  if (fitting != text) shown.setToolTip(TooltipText(FromQt(text)));
  return fitting;
}

QColor ColourOf(colour ink) {
  return {RedOf(ink), GreenOf(ink), BlueOf(ink), AlphaOf(ink)};
}

Qt::Alignment AlignmentOf(gadget_kind kind) {
  if (kind == gadget_kind::kRightLabel) return Qt::AlignRight;
  return kind == gadget_kind::kCentredLabel ? Qt::AlignHCenter : Qt::AlignLeft;
}

QWidget* AtPlace(QWidget* made, const gadget& described, const gadget_frame& frame) {
  made->setGeometry(Scaled(PlaceOf(described), frame.scale));
  return made;
}

// `wanted` in pixels of the screen.
QRect FittingPlace(const gadget_frame& frame, const gadget& described, int wanted) {
  const int in_table = static_cast<int>(std::ceil(wanted / frame.scale));
  return Scaled(FittingPlace(frame.contents, described, in_table), frame.scale);
}

// A coloured mark, which says nothing to a screen reader.
class swatch : public QWidget {
 public:
  swatch(const gadget& described, QWidget& parent)
      : QWidget(&parent), text_(OneLine(described.text)), ink_(ColourOf(described.ink)) {}

 protected:
  void paintEvent(QPaintEvent* /*happened*/) override {
    QPainter target(this);
    target.setPen(ink_);
    target.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter, text_);
  }

 private:
  QString text_;
  QColor ink_;
};

QWidget* MakeLabel(const gadget& described, const gadget_frame& frame) {
  if (described.ink != 0) return AtPlace(new swatch(described, frame.parent), described, frame);
  auto* const label = new QLabel(&frame.parent);
  label->ensurePolished();  // before its font is asked for
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(AlignmentOf(described.kind) | Qt::AlignVCenter);
  const QString text = OneLine(described.text);
  const int wanted = label->fontMetrics().horizontalAdvance(text) + kTextSlack;
  label->setGeometry(FittingPlace(frame, described, wanted));
  label->setText(Fitting(*label, text, label->width(), Qt::ElideMiddle));
  label->setAccessibleName(text);
  return label;
}

// The marks of choices are as large as the text beside them asks for.
class scaled_marks : public QProxyStyle {
 public:
  scaled_marks(double scale, QWidget& shown) : scale_(scale) { setParent(&shown); }

  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    const int size = QProxyStyle::pixelMetric(metric, option, widget);
    const bool is_mark = metric == PM_IndicatorWidth || metric == PM_IndicatorHeight ||
                         metric == PM_ExclusiveIndicatorWidth ||
                         metric == PM_ExclusiveIndicatorHeight;
    return is_mark ? static_cast<int>(std::lround(size * scale_)) : size;
  }

 private:
  double scale_;
};

template <class button>
QWidget* MakeChoice(const gadget& described, const gadget_frame& frame) {
  auto* const choice = new button(&frame.parent);
  if (frame.scale > 1) choice->setStyle(new scaled_marks(frame.scale, *choice));
  choice->ensurePolished();  // before its font is asked for
  const QString text = OneLine(described.text);
  choice->setText(ButtonText(described.text));
  const int box = choice->sizeHint().width() - choice->fontMetrics().horizontalAdvance(text);
  const int wanted = choice->sizeHint().width() + kTextSlack;
  const QRect place = FittingPlace(frame, described, wanted);
  choice->setGeometry(place);
  const QString fitting = Fitting(*choice, text, place.width() - box, Qt::ElideRight);
  choice->setText(QString(fitting).replace(u'&', "&&"_L1));
  choice->setAccessibleName(text);
  choice->setChecked(described.checked);
  return choice;
}

QWidget* MakeButton(const gadget& described, QWidget& parent, const gadget_sink& used) {
  auto* const button = new QPushButton(ButtonText(described.text), &parent);
  button->setDefault(described.kind == gadget_kind::kDefaultButton);
  QObject::connect(button, &QPushButton::clicked, button, [used, id = described.id] { used(id); });
  return button;
}

QWidget* MakeTree(const gadget& described, QWidget& parent, const gadget_sink& used) {
  auto* const tree = new QTreeWidget(&parent);
  tree->setHeaderHidden(true);
  tree->setUniformRowHeights(true);
  QTreeWidgetItem* above = nullptr;
  QList<QTreeWidgetItem*> roots;
  int index = 0;
  for (const tree_item& each : described.items) {
    const bool is_child = each.level > 0 && above != nullptr;
    auto* const added = is_child ? new QTreeWidgetItem(above) : new QTreeWidgetItem;
    added->setText(0, OneLine(each.text));
    added->setData(0, kIndexRole, index++);
    if (is_child) continue;
    above = added;
    roots.push_back(added);
  }
  tree->addTopLevelItems(roots);
  QObject::connect(tree, &QTreeWidget::itemSelectionChanged, tree,
                   [used, id = described.id] { used(id); });
  return tree;
}

QWidget* MakeImage(const gadget& described, QWidget& parent) {
  auto* const label = new QLabel(&parent);
  label->setScaledContents(true);
  const std::optional<picture> decoded = DecodePng(described.text);
  if (!decoded) return label;
  QImage image(decoded->width, decoded->height, QImage::Format_RGBA8888);
  for (int y = 0; y < decoded->height; ++y) {
    const auto row = static_cast<std::size_t>(y) * static_cast<std::size_t>(decoded->width);
    std::copy_n(reinterpret_cast<const uchar*>(decoded->pixels.data() + row),
                4 * static_cast<std::size_t>(decoded->width), image.scanLine(y));
  }
  const double ratio = label->devicePixelRatioF();
  QPixmap pixmap = QPixmap::fromImage(
      image.scaled(label->size() * ratio, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  pixmap.setDevicePixelRatio(ratio);
  label->setPixmap(pixmap);
  return label;
}

QWidget* MakePlainText(const gadget& described, QWidget& parent) {
  auto* const editor = new text_editor(described.text, parent);
  editor->setReadOnly(described.kind == gadget_kind::kReadOnlyText);
  return editor;
}

QWidget* Make(const gadget& described, const gadget_frame& frame, const gadget_sink& used) {
  switch (described.kind) {
    case gadget_kind::kLabel:
    case gadget_kind::kCentredLabel:
    case gadget_kind::kRightLabel:
      return MakeLabel(described, frame);
    case gadget_kind::kTextField:
      return AtPlace(new text_field(described.text, frame.parent), described, frame);
    case gadget_kind::kEditor:
    case gadget_kind::kReadOnlyText:
      return AtPlace(MakePlainText(described, frame.parent), described, frame);
    case gadget_kind::kCheckBox:
      return MakeChoice<QCheckBox>(described, frame);
    case gadget_kind::kOption:
      return MakeChoice<QRadioButton>(described, frame);
    case gadget_kind::kButton:
    case gadget_kind::kDefaultButton:
      return AtPlace(MakeButton(described, frame.parent, used), described, frame);
    case gadget_kind::kTree:
      return AtPlace(MakeTree(described, frame.parent, used), described, frame);
    case gadget_kind::kImage:
      return AtPlace(MakeImage(described, frame.parent), described, frame);
  }
  return nullptr;
}

}  // namespace

QWidget* MakeGadget(const gadget& described, const gadget_frame& frame, const gadget_sink& used) {
  QWidget* const made = Make(described, frame, used);
  if (described.tooltip.empty()) return made;
  const bool is_cut = !made->toolTip().isEmpty();
  made->setToolTip(TooltipText((is_cut ? described.text + ' ' : "") + described.tooltip));
  return made;
}

std::string TextOf(const QWidget& widget) {
  if (const auto* field = dynamic_cast<const text_field*>(&widget)) return field->Text();
  if (const auto* editor = dynamic_cast<const text_editor*>(&widget)) return editor->Text();
  return {};
}

void SetTextOf(QWidget& widget, const std::string& text) {
  if (auto* field = dynamic_cast<text_field*>(&widget)) field->SetText(text);
  if (auto* editor = dynamic_cast<text_editor*>(&widget)) editor->SetText(text);
}

bool IsChecked(const QWidget& widget) {
  const auto* choice = dynamic_cast<const QAbstractButton*>(&widget);
  return choice != nullptr && choice->isChecked();
}

int SelectedItem(const QWidget& widget) {
  const auto* tree = dynamic_cast<const QTreeWidget*>(&widget);
  const auto selected = tree == nullptr ? QList<QTreeWidgetItem*>() : tree->selectedItems();
  return selected.isEmpty() ? -1 : selected.front()->data(0, kIndexRole).toInt();
}

}  // namespace mardel
