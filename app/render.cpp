#include "app/render.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iostream>
#include <optional>
#include <span>
#include <string>
#include <variant>

#include "app/headless_program.h"
#include "app/reports.h"
#include "app/verbs/input.h"
#include "codegen/compare/change_marks.h"
#include "editor/drawn_extent.h"
#include "platform/escaping.h"
#include "platform/files.h"
#include "platform/path.h"
#include "platform/picture_file.h"

namespace mardel {
namespace {

constexpr std::int64_t kMargin = 20;
// The whole canvas, with a margin, at the largest scale.
constexpr double kMostWidth = 16384;
constexpr double kMostHeight = 9216;
// Beyond it vector files lose the last digits of places.
constexpr double kFarthest = 100'000;

struct refusal {
  std::string text;
};

bool IsNear(const extent& drawn) {
  return drawn.left >= -kFarthest && drawn.top >= -kFarthest && drawn.right <= kFarthest &&
         drawn.bottom <= kFarthest;
}

rectangle WithMargin(const extent& drawn) {
  const auto left = static_cast<std::int64_t>(std::floor(drawn.left)) - kMargin;
  const auto top = static_cast<std::int64_t>(std::floor(drawn.top)) - kMargin;
  const auto right = static_cast<std::int64_t>(std::ceil(drawn.right)) + kMargin;
  const auto bottom = static_cast<std::int64_t>(std::ceil(drawn.bottom)) + kMargin;
  return {left, top, right - left, bottom - top};
}

// Of all designs together.
std::optional<extent> DrawnExtent(std::span<const design* const> designs,
                                  const drawing_context& context) {
  std::optional<extent> all;
  for (const design* each : designs) {
    const std::optional<extent> drawn = DrawnExtent(*each, context);
    if (drawn && all) {
      all = extent{std::min(all->left, drawn->left), std::min(all->top, drawn->top),
                   std::max(all->right, drawn->right), std::max(all->bottom, drawn->bottom)};
    } else if (drawn) {
      all = drawn;
    }
  }
  return all;
}

std::variant<rectangle, refusal> Area(const std::array<const design*, 2>& designs,
                                      const drawing_context& context, const render_request& asked) {
  if (asked.area == picture_area::kCanvas) return rectangle{0, 0, kCanvasWidth, kCanvasHeight};
  const std::optional<extent> drawn = DrawnExtent(designs, context);
  if (!drawn) return refusal{"an empty design can't be cropped"};
  const std::string limit = std::to_string(static_cast<int>(kMostWidth)) + " x " +
                            std::to_string(static_cast<int>(kMostHeight)) + " pixels";
  if (IsNear(*drawn)) {
    const rectangle area = WithMargin(*drawn);
    if (static_cast<double>(area.width) * asked.scale <= kMostWidth &&
        static_cast<double>(area.height) * asked.scale <= kMostHeight) {
      return area;
    }
  }
  return refusal{"the design reaches too far for a picture of at most " + limit};
}

// A design that can't be drawn whole is refused, said, and left in the program's status.
std::optional<design> Read(headless_program& run, const std::string& path) {
  const auto content = ReadInput(path);
  std::vector<report> problems;
  run.status = exit_status::kFileOrToolMissing;
  if (const auto* failure = std::get_if<report>(&content)) {
    problems.push_back(*failure);
  } else {
    loaded_design loaded = LoadDesign(std::get<std::string>(content), path, LoadContext(run));
    if (loaded.reports.empty()) return std::move(loaded.document);
    if (loaded.status == load_status::kLoaded) run.status = exit_status::kRefused;
    problems = std::move(loaded.reports);
  }
  for (const report& each : problems) std::cerr << EscapeControls(ReportLine(each.text)) << '\n';
  return std::nullopt;
}

// What the picture is called by: the file's name without its ending.
std::string NameOf(const std::string& path) {
  const std::string_view name = FileName(path);
  return std::string(name.substr(0, name.rfind('.')));
}

}  // namespace

exit_status Run(const render_request& asked) {
  if (asked.output != kStream && IsSameFile(asked.output, asked.design)) {
    return Run(usage_error{"the output would replace the design " + asked.design});
  }
  const std::unique_ptr<picture_maker> pictures = StartPictures();
  if (pictures == nullptr) return exit_status::kFileOrToolMissing;
  headless_program run(pictures->Metrics(), asked.from);
  PrintReports(run.reports);
  if (!pictures->HasTextFont()) {
    (void)Fail(exit_status::kDone, "warning: the text font Arial, or one like it, is missing");
  }
  if (run.status != exit_status::kDone) return run.status;
  const std::optional<design> shown = Read(run, asked.design);
  const std::optional<design> old =
      asked.old_design.empty() ? design() : Read(run, asked.old_design);
  if (!shown || !old) return run.status;
  const auto changes =
      asked.old_design.empty() ? std::vector<design_change>() : DiffDesigns(*old, *shown);
  const drawing_context context{run.libraries, run.metrics, asked.lines};
  const auto area = Area({&*shown, &*old}, context, asked);
  if (const auto* refused = std::get_if<refusal>(&area)) {
    return Fail(exit_status::kRefused, refused->text);
  }
  const std::optional<std::string> content =
      pictures->Make(asked.format, {std::get<rectangle>(area), asked.scale, NameOf(asked.design)},
                     [&](painter& canvas) {
                       DrawDesign(canvas, *shown, context);
                       DrawMarks(canvas, changes);
                     });
  if (!content) {
    return Fail(exit_status::kFileOrToolMissing, "there is not enough memory for the picture");
  }
  return WriteOutput(asked.output, *content);
}

}  // namespace mardel
