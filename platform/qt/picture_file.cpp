#include "platform/picture_file.h"

#include <QBuffer>
#include <QFontInfo>
#include <QGuiApplication>
#include <QImage>
#include <QImageWriter>
#include <QPageSize>
#include <QPdfWriter>
#include <algorithm>
#include <array>
#include <cmath>

#include "platform/qt/qt_painter.h"
#include "platform/qt/qt_text_metrics.h"
#include "platform/qt/text_layouts.h"
#include "platform/qt/toolkit_log.h"
#include "platform/qt/toolkit_needs.h"
#include "platform/svg_painter.h"

namespace mardel {
namespace {

using drawing = std::function<void(painter&)>;

constexpr const char* kTitle = "Mardel design";
constexpr int kPixelsPerInch = 96;
constexpr int kPdfDotsPerInch = 1200;
constexpr double kPointsPerInch = 72;

QRectF AreaOf(const picture_frame& frame) {
  return {static_cast<double>(frame.area.x), static_cast<double>(frame.area.y),
          static_cast<double>(frame.area.width), static_cast<double>(frame.area.height)};
}

QSize PixelsOf(const picture_frame& frame) {
  return (AreaOf(frame).size() * frame.scale).toSize().expandedTo({1, 1});
}

void Draw(QPainter& target, const QRectF& area, const drawing& draw) {
  target.setFont(CanvasFont());  // vector files name one even where they draw no text
  text_layouts layouts;
  qt_painter drawn(target, area, layouts);
  draw(drawn);
}

bool WritePng(QBuffer& file, const picture_frame& frame, const drawing& draw) {
  QImage pixels(PixelsOf(frame), QImage::Format_RGB32);
  if (pixels.isNull()) return false;
  constexpr double kInchesPerMeter = 1 / 0.0254;
  const int density = qRound(kPixelsPerInch * frame.scale * kInchesPerMeter);
  pixels.setDotsPerMeterX(density);
  pixels.setDotsPerMeterY(density);
  QPainter target(&pixels);
  target.scale(frame.scale, frame.scale);
  target.translate(-AreaOf(frame).topLeft());
  Draw(target, AreaOf(frame), draw);
  target.end();
  return QImageWriter(&file, "png").write(pixels);
}

// What a run writes of its own: its moment, and a number that no other file has.
struct own_text {
  QByteArrayView begin;
  char end;
};

constexpr own_text kOwnTexts[] = {
    {"\n/CreationDate (", ')'},    {"\n/ModDate (", ')'},       {"\n/ID [", ']'},
    {" xmp:CreateDate=\"", '"'},   {" xmp:ModifyDate=\"", '"'}, {" xmp:MetadataDate=\"", '"'},
    {" xmpMM:DocumentID=\"", '"'},
};

// With blanks in their place, since the file tells the places of what follows.
void RemoveOwnTexts(QByteArray& pdf) {
  for (const own_text& own : kOwnTexts) {
    const qsizetype start = pdf.indexOf(own.begin);
    if (start < 0) continue;
    const qsizetype end = pdf.indexOf(own.end, start + own.begin.size());
    if (end >= 0) std::fill(pdf.begin() + start + 1, pdf.begin() + end + 1, ' ');
  }
}

bool WritePdf(QBuffer& file, const picture_frame& frame, const drawing& draw) {
  const double points = frame.scale * kPointsPerInch / kPixelsPerInch;
  const QRectF area = AreaOf(frame);
  // Pages are whole points, and drawn all over.
  const QSizeF page(std::ceil(area.width() * points), std::ceil(area.height() * points));
  QPdfWriter writer(&file);
  writer.setCreator(QLatin1StringView(kTitle));
  writer.setTitle(QString::fromStdString(frame.title));
  writer.setResolution(kPdfDotsPerInch);
  writer.setPageSize(QPageSize(page, QPageSize::Point, QString(), QPageSize::ExactMatch));
  writer.setPageMargins({0, 0, 0, 0});
  QPainter target(&writer);
  if (!target.isActive()) return false;
  const double scale = frame.scale * kPdfDotsPerInch / kPixelsPerInch;
  target.scale(scale, scale);
  target.translate(-area.topLeft());
  Draw(target, {area.topLeft(), page / points}, draw);
  if (!target.end()) return false;
  RemoveOwnTexts(file.buffer());
  return true;
}

class qt_picture_maker : public picture_maker {
 public:
  const text_metrics& Metrics() const override { return metrics_; }

  bool HasTextFont() const override {
    constexpr const char* kAlike[] = {"Arial", "Liberation Sans", "Arimo", "Helvetica",
                                      "Nimbus Sans"};
    const QString family = QFontInfo(CanvasFont()).family();
    return std::ranges::any_of(kAlike,
                               [&](const char* each) { return family == QLatin1StringView(each); });
  }

  std::optional<std::string> Make(picture_format format, const picture_frame& frame,
                                  const drawing& draw) override {
    if (format == picture_format::kSvg) {
      svg_painter canvas(frame.area, metrics_);
      draw(canvas);
      return canvas.Finish(frame.title, kTitle, frame.scale);
    }
    const auto write = format == picture_format::kPng ? WritePng : WritePdf;
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    if (!write(file, frame, draw)) return std::nullopt;
    return file.data().toStdString();
  }

 private:
  // The application keeps references to these.
  int argument_count_ = 3;
  std::array<char[10], 3> words_ = {"mardel", "-platform", "offscreen"};
  std::array<char*, 4> arguments_ = {words_[0], words_[1], words_[2], nullptr};
  QGuiApplication application_{argument_count_, arguments_.data()};
  text_layouts layouts_;
  qt_text_metrics metrics_{layouts_};
};

}  // namespace

std::unique_ptr<picture_maker> StartPictures() {
  if (!ToolkitCanStart()) return nullptr;
  QuietToolkitForPictures();
  // The user's theme would look for a display.
  qunsetenv("QT_QPA_PLATFORMTHEME");
  // How long the dates in a PDF file are depends on the zone.
  qputenv("TZ", "UTC0");
  return std::make_unique<qt_picture_maker>();
}

}  // namespace mardel
