#include "platform/qt/secondary_window.h"

#include <QCloseEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/qt/dialog_scale.h"
#include "platform/qt/qt_text.h"

namespace mardel {
namespace {

constexpr int kScreenMargin = 60;  // for the desktop's panels and the window's frame

}  // namespace

secondary_window::secondary_window(const mardel::window& contents, QWidget& owner,
                                   secondary_window_sink heard)
    : QDialog(&owner),
      heard_(std::move(heard)),
      modality_(contents.modality),
      scale_(DialogScale()) {
  setFont(DialogFont(scale_));
  setWindowTitle(TitleText(contents.title));
  const int room = owner.screen()->availableGeometry().height() - kScreenMargin;
  if (BottomOf(contents) <= contents.height && Scaled(contents.height, scale_) <= room) {
    ShowInWindow(contents);
  } else {
    ShowScrolling(contents, room);
  }
  panel_->FocusFirstField();
}

void secondary_window::ShowInWindow(const mardel::window& contents) {
  panel_ = new gadget_panel(contents, scale_, *this, heard_.used);
  panel_->MakeAll();
  const QSize size(Scaled(contents.width, scale_), Scaled(contents.height, scale_));
  if (contents.sizing == window_sizing::kFixed) {
    setFixedSize(size);
  } else {
    setMinimumSize(size / 2);
    resize(size);
  }
}

// The gadgets, or the window, are higher than there is room. The scroll bar takes of the width.
void secondary_window::ShowScrolling(mardel::window contents, int room) {
  auto* const area = new QScrollArea(this);
  setFixedSize(Scaled(contents.width, scale_), std::min(Scaled(contents.height, scale_), room));
  area->setGeometry(rect());
  area->setFrameShape(QFrame::NoFrame);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  area->setFocusPolicy(Qt::NoFocus);
  QScrollBar* const bar = area->verticalScrollBar();
  contents.width -= static_cast<int>(std::ceil(bar->sizeHint().width() / scale_));
  const QSize size(Scaled(contents.width, scale_), Scaled(BottomOf(contents), scale_));
  panel_ = new gadget_panel(std::move(contents), scale_, *this, heard_.used);
  panel_->setFixedSize(size.boundedTo(QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX)));
  area->setWidget(panel_);
  const auto make_rows = [this](int top) { panel_->MakeRows(top, top + height()); };
  QObject::connect(bar, &QScrollBar::valueChanged, panel_, make_rows);
  make_rows(0);
}

bool secondary_window::event(QEvent* happened) {
  if (happened->type() == QEvent::WindowActivate) heard_.activated();
  return QDialog::event(happened);
}

void secondary_window::closeEvent(QCloseEvent* happened) {
  happened->ignore();
  heard_.close_requested();
}

void secondary_window::resizeEvent(QResizeEvent* happened) {
  QDialog::resizeEvent(happened);
  if (panel_->parentWidget() == this) panel_->setGeometry(rect());
}

}  // namespace mardel
