#include "codegen/compare/change_marks.h"

namespace mardel {
namespace {

constexpr double kMarkWidth = 4.0;
constexpr double kDash = 6.0;
constexpr std::int64_t kGap = 3;  // between a box and its mark
constexpr stroke kAddedPen{Rgba(0, 150, 0), kMarkWidth};
constexpr stroke kChangedPen{Rgba(235, 130, 0), kMarkWidth};
constexpr stroke kRemovedPen{Rgba(200, 0, 0), kMarkWidth, kDash};
constexpr colour kGhost = Rgba(200, 0, 0, 40);

const stroke& PenOf(change_kind kind) {
  switch (kind) {
    case change_kind::kAdded:
      return kAddedPen;
    case change_kind::kRemoved:
      return kRemovedPen;
    case change_kind::kMoved:
    case change_kind::kChanged:
      break;
  }
  return kChangedPen;
}

template <class record>
const record* Shown(const matched<record>& of) {
  return of.new_one != nullptr ? of.new_one : of.old_one;
}

template <class record>
rectangle Around(const record& of) {
  return {of.x - kGap, of.y - kGap, of.width + 2 * kGap, of.height + 2 * kGap};
}

void Mark(painter& canvas, const dvblock& block, const stroke& pen) {
  canvas.StrokeRectangle(Around(block), pen);
  if (pen.dash == 0) return;
  canvas.FillRectangle(Around(block), kGhost);
  canvas.Text({block.x + kGap, block.y + kGap}, block.sub, pen.ink);
}

void Mark(painter& canvas, const net& wire, const stroke& pen) {
  const line shown[] = {{{wire.x_1, wire.y_1}, {wire.x_2, wire.y_2}}};
  canvas.Lines(shown, pen);
}

void Mark(painter& canvas, const textblock& note, const stroke& pen) {
  canvas.StrokeRectangle(Around(note), pen);
  if (pen.dash != 0)
    canvas.Paragraph({note.x, note.y, kNoteBox, note.height}, note.text_str, pen.ink);
}

}  // namespace

void DrawMarks(painter& canvas, const std::vector<design_change>& changes) {
  for (const design_change& each : changes) {
    const stroke& pen = PenOf(each.kind);
    if (const dvblock* const block = Shown(each.block)) Mark(canvas, *block, pen);
    if (const net* const wire = Shown(each.wire)) Mark(canvas, *wire, pen);
    if (const textblock* const note = Shown(each.note)) Mark(canvas, *note, pen);
  }
}

}  // namespace mardel
