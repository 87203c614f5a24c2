// What keeps a design from becoming a program.
#pragma once

#include <string_view>
#include <vector>

#include "codegen/net_ends.h"
#include "editor/design.h"
#include "library/report.h"

namespace mardel {

enum class problem_search { kFirst, kAll };

// Nets that join pins of different types, in net order.
[[nodiscard]] std::vector<report> FindTypeMismatches(const design& document, problem_search search);

// Parameters without a value and pins without a net, in block order. Nets that removed blocks took
// with them count too.
[[nodiscard]] std::vector<report> CheckDesign(const design& document, problem_search search,
                                              std::span<const net> removed = {});

// Also for the writer, which meets parameters that lost their type.
report UnsetParameter(const dvblock& block, std::string_view name);

// The type of the pin under each end; "" where there is no such pin.
std::vector<std::string_view> EndTypes(const design& document, const net_ends& ends);

// As above, for ends and types that are known already.
[[nodiscard]] std::vector<report> FindTypeMismatches(const design& document, const net_ends& ends,
                                                     const std::vector<std::string_view>& types,
                                                     problem_search search);

}  // namespace mardel
