// Redrawing a whole canvas.
#include <QImage>
#include <QLineF>
#include <QPainter>
#include <QPen>

#include "bench/measures.h"
#include "bench/window.h"
#include "platform/qt/qt_painter.h"
#include "platform/qt/qt_text_metrics.h"

namespace mardel {
namespace {

QColor ToQt(colour ink) {
  return {RedOf(ink), GreenOf(ink), BlueOf(ink), AlphaOf(ink)};
}

QPointF ToQt(point at) {
  return {static_cast<double>(at.x), static_cast<double>(at.y)};
}

QRectF ToQt(const rectangle& r) {
  return {static_cast<double>(r.x), static_cast<double>(r.y), static_cast<double>(r.width),
          static_cast<double>(r.height)};
}

// One call of the toolkit, with all that it needs.
struct primitive {
  enum class kind { kFill, kLine, kText };
  kind what = kind::kFill;
  QRectF place = {};
  QColor fill = {};
  QPen pen = {};
  QLineF slanting = {};
  std::shared_ptr<QTextLayout> text = {};
};

// Records designs without a selection, whose rectangles are all filled.
class primitive_recorder : public painter {
 public:
  std::vector<primitive> primitives;

  void FillBackground(colour ink) override {
    FillRectangle({0, 0, kCanvasWidth, kCanvasHeight}, ink);
  }
  void FillRectangle(const rectangle& place, colour ink) override {
    primitives.push_back({.place = ToQt(place), .fill = ToQt(ink)});
  }
  void StrokeRectangle(const rectangle& /*place*/, const stroke& /*pen*/) override {}
  void Lines(std::span<const line> lines, const stroke& pen) override {
    for (const line& each : lines) AddLine(each, pen);
  }
  void Text(point corner, std::string_view text, colour ink) override {
    AddText({corner.x, corner.y, 0, 0}, layouts_.Line(text), ink);
  }
  void Paragraph(const rectangle& box, std::string_view text, colour ink) override {
    AddText(box, layouts_.Paragraph(text, static_cast<double>(box.width)), ink);
  }

 private:
  // Upright lines are rectangles of whole pixels.
  void AddLine(const line& each, const stroke& pen) {
    const auto& [from, to] = each;
    const auto wide = static_cast<std::int64_t>(pen.width), half = wide / 2;
    const std::int64_t left = std::min(from.x, to.x), top = std::min(from.y, to.y);
    const std::int64_t length = std::max(from.x, to.x) - left + std::max(from.y, to.y) - top;
    const std::int64_t all = length + wide - 2 * half;
    if (from.y == to.y) return FillRectangle({left, top - half, all, wide}, pen.ink);
    if (from.x == to.x) return FillRectangle({left - half, top, wide, all}, pen.ink);
    primitives.push_back({.what = primitive::kind::kLine,
                          .pen = QPen(ToQt(pen.ink), pen.width, Qt::SolidLine, Qt::FlatCap),
                          .slanting = QLineF(ToQt(from), ToQt(to))});
  }
  void AddText(const rectangle& place, const QTextLayout& like, colour ink) {
    auto laid_out = std::make_shared<QTextLayout>(like.text(), like.font());
    laid_out->setTextOption(like.textOption());
    laid_out->setCacheEnabled(true);
    laid_out->beginLayout();
    for (int number = 0; number < like.lineCount(); ++number) {
      QTextLine row = laid_out->createLine();
      row.setLineWidth(like.lineAt(number).width());
      row.setPosition(like.lineAt(number).position());
    }
    laid_out->endLayout();
    primitives.push_back({.what = primitive::kind::kText,
                          .place = ToQt(place),
                          .pen = QPen(ToQt(ink)),
                          .text = laid_out});
  }

  text_layouts layouts_;
};

void Issue(QPainter& target, const primitive& each) {
  if (each.what == primitive::kind::kFill) return target.fillRect(each.place, each.fill);
  target.setPen(each.pen);
  if (each.what == primitive::kind::kText) return each.text->draw(&target, each.place.topLeft());
  target.setRenderHint(QPainter::Antialiasing, true);
  target.drawLine(each.slanting);
  target.setRenderHint(QPainter::Antialiasing, false);
}

QImage EmptyCanvas() {
  return QImage(kCanvasWidth, kCanvasHeight, QImage::Format_RGB32);
}

// Both sides, as they are measured and compared.
struct canvas_pair {
  explicit canvas_pair(std::size_t blocks) { generated.Generate(blocks); }

  void DrawDesignInto(QImage& image) {
    QPainter target(&image);
    qt_painter canvas(target, QRectF(image.rect()), texts);
    DrawDesign(canvas, generated.document, context);
  }
  void IssueInto(QImage& image, const std::vector<primitive>& primitives) const {
    QPainter target(&image);
    for (const primitive& each : primitives) Issue(target, each);
  }
  std::vector<primitive> Primitives() {
    primitive_recorder recorder;
    DrawDesign(recorder, generated.document, context);
    return recorder.primitives;
  }

  offscreen_desktop desk;
  design_program generated;
  text_layouts texts;
  qt_text_metrics metrics{texts};
  drawing_context context{generated.run.libraries, metrics, grid::kShown};
};

void Redraw(benchmark::State& state, std::size_t blocks) {
  canvas_pair both(blocks);
  QImage image = EmptyCanvas();
  QImage expected = EmptyCanvas();
  both.IssueInto(expected, both.Primitives());
  for (auto _ : state) {
    TimeComputing(state, [&] { both.DrawDesignInto(image); });
  }
  if (image != expected) state.SkipWithError("the pictures differ");
}

void IssuePrimitives(benchmark::State& state, std::size_t blocks) {
  canvas_pair both(blocks);
  QImage image = EmptyCanvas();
  const std::vector<primitive> primitives = both.Primitives();
  for (auto _ : state) {
    TimeComputing(state, [&] { both.IssueInto(image, primitives); });
  }
}

}  // namespace

void AddRedrawMeasures(table& all) {
  for (const std::size_t blocks : {10U, 100U, 1000U}) {
    all.Add({.name = "full redraw, grid on",
             .floor_name = "same primitives from an array",
             .size = std::to_string(blocks),
             .product = [=](benchmark::State& state) { Redraw(state, blocks); },
             .floor = [=](benchmark::State& state) { IssuePrimitives(state, blocks); },
             .target = 1.25});
  }
}

}  // namespace mardel
