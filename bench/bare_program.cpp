// mardel_bare_program: prints a line, the least that a program can do.
// mardel_bare_program FILE COMMAND...: runs the command and writes the most memory that it took to
// the file, in KiB. Only a small program can: a child counts from its parent's memory on.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <iostream>

int main(int argc, char** argv) {
  if (argc < 3) {
    std::cout << "a line\n";
    return 0;
  }
  const pid_t child = fork();
  if (child == 0) {
    execv(argv[2], argv + 2);
    _exit(127);
  }
  int status = -1;
  rusage used{};
  wait4(child, &status, 0, &used);
  std::ofstream(argv[1]) << used.ru_maxrss << '\n';
  return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}
