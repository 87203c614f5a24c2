// The versions of a design that saves replaced. They stand below the state folder under the
// design's own path: "history/home/ann/Echo.mrd/17.mrd".
#pragma once

#include <string>
#include <vector>

#include "platform/new_file.h"

namespace mardel {

constexpr std::size_t kMostVersions = 20;
constexpr std::size_t kMostVersionBytes = std::size_t{64}
                                          << 20U;  // of one design; the newest stays
constexpr std::size_t kMostHistoryBytes = std::size_t{512} << 20U;  // of all designs

struct design_version {
  int number = 0;    // from 1 on; each design counts its own
  file_facts facts;  // written when the version was saved
  std::string path;
};

// Newest first. Links to the design's file are followed.
std::vector<design_version> Versions(const std::string& state_folder, const std::string& design);

// Keeps what stands in the design's file, unless that is the version that was kept last. What can't
// be kept is left out: it hinders no save.
void KeepVersion(const std::string& state_folder, const std::string& design);

// Removes what was kept first, of whatever design, while there is too much. Looks at every version:
// not for each save.
void BoundHistory(const std::string& state_folder);

}  // namespace mardel
