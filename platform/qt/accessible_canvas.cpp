#include "platform/qt/accessible_canvas.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QWindow>

#include "platform/qt/canvas.h"
#include "platform/qt/qt_text.h"

namespace mardel {
namespace {

QRect PlaceOf(const canvas_part& part) {
  const rectangle& place = part.place;
  return {static_cast<int>(place.x), static_cast<int>(place.y), static_cast<int>(place.width),
          static_cast<int>(place.height)};
}

// The part of a number, whichever that is when it is asked.
class accessible_part : public QAccessibleInterface {
 public:
  accessible_part(canvas& owner, std::size_t number) : owner_(owner), number_(number) {}

  bool isValid() const override { return number_ < owner_.Parts().size(); }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return owner_.window()->windowHandle(); }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(&owner_);
  }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
  void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}

  QString text(QAccessible::Text kind) const override {
    return isValid() && kind == QAccessible::Name ? OneLine(Part().name) : QString();
  }
  QRect rect() const override {
    if (!isValid()) return {};
    const QRect place = PlaceOf(Part());
    return {owner_.mapToGlobal(place.topLeft()), place.size()};
  }
  QAccessible::Role role() const override {
    const bool is_note = isValid() && Part().of == canvas_part::kind::kNote;
    return is_note ? QAccessible::StaticText : QAccessible::Graphic;
  }
  QAccessible::State state() const override {
    QAccessible::State told;
    told.invalid = !isValid();
    told.offscreen = isValid() && !owner_.visibleRegion().intersects(PlaceOf(Part()));
    return told;
  }

 private:
  const canvas_part& Part() const { return owner_.Parts()[number_]; }

  canvas& owner_;
  std::size_t number_;
};

class accessible_canvas : public QAccessibleWidget {
 public:
  explicit accessible_canvas(canvas& shown)
      : QAccessibleWidget(&shown, QAccessible::Canvas), shown_(shown) {}
  accessible_canvas(const accessible_canvas&) = delete;
  accessible_canvas& operator=(const accessible_canvas&) = delete;
  ~accessible_canvas() override {
    for (const QAccessible::Id each : offered_) QAccessible::deleteAccessibleInterface(each);
  }

  int childCount() const override { return static_cast<int>(shown_.Parts().size()); }
  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    const auto wanted = static_cast<std::size_t>(index);
    while (offered_.size() <= wanted) {
      offered_.push_back(
          QAccessible::registerAccessibleInterface(new accessible_part(shown_, offered_.size())));
    }
    return QAccessible::accessibleInterface(offered_[wanted]);
  }
  int indexOfChild(const QAccessibleInterface* wanted) const override {
    for (int i = 0; i < childCount(); ++i) {
      if (child(i) == wanted) return i;
    }
    return -1;
  }
  // The last lies on top.
  QAccessibleInterface* childAt(int x, int y) const override {
    for (int i = childCount(); i-- > 0;) {
      if (child(i)->rect().contains(x, y)) return child(i);
    }
    return nullptr;
  }

 private:
  canvas& shown_;
  mutable std::vector<QAccessible::Id> offered_;  // made when first asked for
};

QAccessibleInterface* OfferCanvas(const QString& /*kind*/, QObject* object) {
  auto* const shown = dynamic_cast<canvas*>(object);
  return shown == nullptr ? nullptr : new accessible_canvas(*shown);
}

}  // namespace

void OfferCanvasParts() {
  QAccessible::installFactory(OfferCanvas);
}

}  // namespace mardel
