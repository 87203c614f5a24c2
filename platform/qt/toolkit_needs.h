// What the toolkit needs of the system, and would wait or crash for without a word.
#pragma once

namespace mardel {

// False, and one line on standard error says so, when the process may start too few threads or
// take too little memory. Needs no application yet.
bool ToolkitCanStart();

}  // namespace mardel
