#include "app/render.h"

#include <array>
#include <cmath>
#include <string>
#include <variant>

#include "app/headless_program.h"
#include "editor/drawn_extent.h"
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

std::variant<rectangle, refusal> Area(const design& document, const drawing_context& context,
                                      const render_request& asked) {
  if (asked.area == picture_area::kCanvas) return rectangle{0, 0, kCanvasWidth, kCanvasHeight};
  const std::optional<extent> drawn = DrawnExtent(document, context);
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

}  // namespace

exit_status Run(const render_request& asked) {
  if (IsSameFile(asked.output, asked.design)) {
    return Run(usage_error{"the output would replace the design " + asked.design});
  }
  const std::unique_ptr<picture_maker> pictures = StartPictures();
  const headless_program run(pictures->Metrics());
  const loaded_design loaded = Load(run, asked.design);
  if (StatusOf(loaded) != exit_status::kDone) return StatusOf(loaded);
  const drawing_context context{run.libraries, run.metrics, asked.lines};
  const auto area = Area(loaded.document, context, asked);
  if (const auto* refused = std::get_if<refusal>(&area)) {
    return Fail(exit_status::kRefused, refused->text);
  }
  const std::optional<std::string> content =
      pictures->Make(*FormatOfPicture(asked.output), {std::get<rectangle>(area), asked.scale},
                     [&](painter& canvas) { DrawDesign(canvas, loaded.document, context); });
  if (!content) {
    return Fail(exit_status::kFileOrToolMissing, "there is not enough memory for the picture");
  }
  if (ReplaceFile(asked.output, *content) != write_status::kWritten) {
    return Fail(exit_status::kFileOrToolMissing, asked.output + " could not be written");
  }
  return exit_status::kDone;
}

}  // namespace mardel
