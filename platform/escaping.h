// Text in places that can't hold all of it.
#pragma once

#include <string>
#include <string_view>

namespace mardel {

// On one line of a terminal: line breaks and tabs as "\n", "\r" and "\t", other control characters
// and bytes that are not UTF-8 as "\x1B".
std::string EscapeControls(std::string_view text);

// What stands between the quotes of a JSON string; bytes that are not UTF-8 become U+FFFD.
std::string EscapeJson(std::string_view text);

// A path as the reference of a URI: bytes other than unreserved characters and "/" as "%20".
std::string EscapePath(std::string_view path);

}  // namespace mardel
