// Tools and a disk as a script has them.
#pragma once

#include <sys/resource.h>

#include <algorithm>
#include <csignal>
#include <deque>
#include <string>
#include <vector>

#include "platform/process.h"

namespace mardel {

// Tools end as scripted, else well; each run is one of the calls.
class scripted_runner : public process_runner {
 public:
  explicit scripted_runner(std::vector<std::string>& calls) : calls_(calls) {}
  std::deque<int> codes;  // exit codes in order, -1 for a tool that can't be started
  tool_result RunTool(const std::string& tool, const std::string& options) override {
    calls_.push_back("run " + tool + " " + options);
    const int code = codes.empty() ? 0 : codes.front();
    if (!codes.empty()) codes.pop_front();
    return code < 0 ? tool_result() : tool_result{true, "said\rmore\r", code};
  }

 private:
  std::vector<std::string>& calls_;
};

// No file grows while the disk is full.
inline void LimitFiles(rlim_t bytes) {
  rlimit limits{};
  std::signal(SIGXFSZ, SIG_IGN);
  getrlimit(RLIMIT_FSIZE, &limits);
  limits.rlim_cur = std::min(bytes, limits.rlim_max);
  setrlimit(RLIMIT_FSIZE, &limits);
}

}  // namespace mardel
