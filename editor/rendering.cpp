#include "editor/rendering.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace mardel {

namespace {

constexpr colour kBackground = Rgba(220, 220, 220);
constexpr colour kGridGrey = Rgba(125, 125, 125);
constexpr colour kPinBlue = Rgba(0, 0, 255);
constexpr int kBlockAlpha = 192;
constexpr stroke kSelectionOutline{kRed, 2.0, 10.0};
constexpr std::int64_t kGridPitch = 10;
constexpr std::size_t kBlackEvery = 10;  // grid lines
constexpr std::int64_t kLabelX = 9, kLabelY = 10;

constexpr auto kVerticalLines = [] {
  std::array<line, kCanvasWidth / kGridPitch> lines;
  std::int64_t x = 0;
  for (line& each : lines) {
    each = {{x, 0}, {x, kCanvasHeight - 1}};
    x += kGridPitch;
  }
  return lines;
}();

constexpr auto kHorizontalLines = [] {
  std::array<line, kCanvasHeight / kGridPitch> lines;
  std::int64_t y = 0;
  for (line& each : lines) {
    each = {{0, y}, {kCanvasWidth - 1, y}};
    y += kGridPitch;
  }
  return lines;
}();

void DrawGridLines(painter& canvas, std::span<const line> lines) {
  for (std::size_t first = 0; first < lines.size(); first += kBlackEvery) {
    const auto run = lines.subspan(first, std::min(kBlackEvery, lines.size() - first));
    canvas.Lines(run.first(1), {kBlack});
    canvas.Lines(run.subspan(1), {kGridGrey});
  }
}

void DrawBlock(painter& canvas, const dvblock& block, colour fill, colour label) {
  const rectangle box{block.x, block.y, block.width, block.height};
  canvas.BeginBlock(block.id, block.sub);
  if (block.selected) canvas.StrokeRectangle(box, kSelectionOutline);
  canvas.FillRectangle(box, WithAlpha(fill, kBlockAlpha));
  canvas.Text({block.x + kLabelX, block.y + kLabelY}, block.sub, WithAlpha(label, 255));
  for (const pin& p : block.pins) {
    canvas.FillRectangle({block.x + p.pin_x, block.y + p.pin_y, kPinSize, kPinSize}, kPinBlue);
  }
  canvas.EndBlock();
}

void DrawBlocks(painter& canvas, const design& document, const library_set& libraries) {
  colour fill = kBlack, label = kBlack;
  for (const dvblock& block : document.blocks) {
    // kept: a block of a library that is not loaded looks like the block drawn before it.
    if (const library* of = libraries.FindLibrary(block.lib)) {
      fill = of->lib_color;
      label = of->lib_text_color;
    }
    DrawBlock(canvas, block, fill, label);
  }
}

// Nets of one colour that follow each other are handed on together.
void DrawNets(painter& canvas, const design& document) {
  std::array<line, 64> run;
  std::size_t used = 0;
  colour ink = kNetColour;
  const auto flush = [&] {
    if (used > 0) canvas.Lines(std::span(run).first(used), {ink, kNetWidth});
    used = 0;
  };
  for (const net& wire : document.nets) {
    if (wire.color != ink || used == run.size()) flush();
    ink = wire.color;
    run[used++] = {{wire.x_1, wire.y_1}, {wire.x_2, wire.y_2}};
  }
  flush();
}

void DrawNotes(painter& canvas, const design& document, const text_metrics& metrics) {
  for (const textblock& note : document.texts) {
    // Rounded up, so that the box cuts nothing off.
    const double height = std::ceil(NoteHeight(note.text_str, kNoteBox, metrics));
    canvas.Paragraph({note.x, note.y, kNoteBox, static_cast<std::int64_t>(height)}, note.text_str,
                     note.selected ? kRed : kBlack);
  }
}

}  // namespace

void DrawDesign(painter& canvas, const design& document, const drawing_context& context) {
  canvas.FillBackground(kBackground);
  if (context.lines == grid::kShown) {
    DrawGridLines(canvas, kVerticalLines);
    DrawGridLines(canvas, kHorizontalLines);
  }
  DrawBlocks(canvas, document, context.libraries);
  DrawNets(canvas, document);
  DrawNotes(canvas, document, context.metrics);
}

}  // namespace mardel
