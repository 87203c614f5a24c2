// Child processes, by the time that they take.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace mardel {

// The path of a program that was built beside this one.
std::string Beside(const std::string& program);

struct command {
  std::vector<std::string> words;  // the program's path first
  std::string home;
};

// The id of the new process. Its standard output and error go nowhere.
pid_t Start(const command& started);
struct ending {
  int status = -1;       // as it exited; -1 when a signal ended it
  double processor = 0;  // seconds of processor time that it took
};
ending Await(pid_t child);
// Ends it at once.
void End(pid_t child);

struct mapping {
  double mapped = 0, painted = 0;  // seconds from the start of the process; 0 when it never came
  double processor = 0;            // seconds of processor time until it was painted
  double memory = 0;               // proportional set size half a second later, KiB
};

// Starts the program on the display, waits until its main window is mapped and its canvas painted,
// and ends it.
mapping StartWindow(const command& started);

}  // namespace mardel
