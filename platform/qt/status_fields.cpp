#include "platform/qt/status_fields.h"

#include <QPaintEvent>
#include <QPainter>

#include "platform/qt/qt_text.h"

namespace mardel {

class status_field : public QWidget {
 public:
  explicit status_field(int number) {
    setObjectName(QStringLiteral("status_%1").arg(number));
    setMinimumHeight(fontMetrics().height() + 4);
    Show({});
  }

  void Show(const QString& text) {
    text_ = text;
    setAccessibleName(text);
    update();
  }

 protected:
  bool event(QEvent* happened) override {
    if (happened->type() == QEvent::ToolTip) {
      setToolTip(Fitting() == text_ ? QString() : TooltipText(FromQt(text_)));
    }
    return QWidget::event(happened);
  }

  void paintEvent(QPaintEvent* /*happened*/) override {
    QPainter(this).drawText(Room(), Qt::AlignVCenter | Qt::TextSingleLine, Fitting());
  }

 private:
  QRect Room() const {
    constexpr int kMargin = 4;
    return rect().adjusted(kMargin, 0, -kMargin, 0);
  }
  QString Fitting() const {
    return fontMetrics().elidedText(text_, Qt::ElideRight, Room().width());
  }

  QString text_;
};

status_fields::status_fields(const std::vector<int>& widths) {
  int number = 0;
  for (const int width : widths) {
    auto* const added = new status_field(number++);
    if (width > 0) {
      added->setFixedWidth(width);
    } else {
      added->setMinimumWidth(0);
    }
    addWidget(added, width > 0 ? 0 : 1);
    fields_.push_back(added);
  }
}

void status_fields::Set(int field, const std::string& text) {
  fields_.at(static_cast<std::size_t>(field))->Show(OneLine(text));
}

}  // namespace mardel
