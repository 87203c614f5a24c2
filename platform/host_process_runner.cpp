#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

#include "platform/descriptor.h"
#include "platform/process.h"
#include "platform/text.h"

namespace mardel {
namespace {

constexpr int kPatience = 20;  // milliseconds between two looks at a tool that is silent
constexpr int kSoon = 1;       // the same when it has closed its outputs and is about to end
constexpr int kUnknownEnd = 127 << 8;  // exit code 127, as waitpid has it

// What a tool writes, taken as it comes, in bounded memory.
class output_pipe {
 public:
  explicit output_pipe(std::size_t most) : kept_(most) {}

  bool Open() {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) return false;
    from_tool_ = descriptor(ends[0]);
    of_tool_ = descriptor(ends[1]);
    for (const int end : ends) fcntl(end, F_SETFD, FD_CLOEXEC);
    return fcntl(ends[0], F_SETFL, O_NONBLOCK) == 0;
  }
  int EndOfTool() const { return of_tool_.Number(); }
  void ToolHasStarted() { of_tool_ = descriptor(); }
  pollfd Awaited() const { return {from_tool_.Number(), POLLIN, 0}; }
  bool IsOpen() const { return from_tool_.IsOpen(); }

  // Not without end, since what the tool has started may write on and on.
  void Read() {
    std::array<char, 4096> bytes{};
    for (int turn = 0; turn < 256 && IsOpen(); ++turn) {
      const ssize_t size = read(from_tool_.Number(), bytes.data(), bytes.size());
      if (size < 0) return;
      if (size == 0) {
        from_tool_ = descriptor();
        return;
      }
      Append({bytes.data(), static_cast<std::size_t>(size)});
    }
  }
  // Each line and "\r".
  std::string Lines() {
    if (!last_line_ended_) kept_.Append("\r");
    return kept_.Text();
  }

 private:
  void Append(std::string_view bytes) {
    std::string lines(bytes);
    std::ranges::replace(lines, '\n', '\r');
    last_line_ended_ = bytes.back() == '\n';
    kept_.Append(lines);
  }

  descriptor from_tool_, of_tool_;
  cut_text kept_;
  bool last_line_ended_ = true;
};

// A bare name stands for the file in the current folder, not for a command on the search path.
std::string ProgramPath(const std::string& program) {
  return program.find('/') == std::string::npos ? "./" + program : program;
}

// The tool's process, or -1. Without an end for it, errors go where this process's go.
pid_t Start(const std::string& program, const std::string& arguments, int output, int errors) {
  std::vector<std::string> words = SplitArguments(arguments);
  words.insert(words.begin(), ProgramPath(program));
  std::vector<char*> pointers;
  for (std::string& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);

  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
  if (errors >= 0) posix_spawn_file_actions_adddup2(&actions, errors, STDERR_FILENO);
  pid_t child = -1;
  const int failure =
      posix_spawn(&child, pointers.front(), &actions, nullptr, pointers.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  return failure == 0 ? child : -1;
}

std::int64_t ExitCode(int status) {
  return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

}  // namespace

host_process_runner::host_process_runner(tool_errors errors, std::function<void()> meanwhile)
    : errors_(errors), meanwhile_(std::move(meanwhile)) {}

tool_result host_process_runner::RunTool(const std::string& program, const std::string& arguments) {
  output_pipe output(kMostToolOutput);
  output_pipe errors(kMostToolErrors);
  if (!output.Open()) return {};
  if (errors_ == tool_errors::kKept && !errors.Open()) return {};
  std::signal(SIGCHLD, SIG_DFL);  // a launcher may have it ignored, and so the exit code lost
  const pid_t child = Start(program, arguments, output.EndOfTool(), errors.EndOfTool());
  if (child < 0) return {};
  output.ToolHasStarted();
  errors.ToolHasStarted();

  int status = 0;
  for (bool ended = false; !ended;) {
    const pid_t found = waitpid(child, &status, WNOHANG);
    if (found < 0) status = kUnknownEnd;
    ended = found != 0;
    if (!ended) {
      std::array<pollfd, 2> awaited = {output.Awaited(), errors.Awaited()};
      poll(awaited.data(), awaited.size(), output.IsOpen() || errors.IsOpen() ? kPatience : kSoon);
      if (meanwhile_) meanwhile_();
    }
    output.Read();
    errors.Read();
  }
  const std::int64_t code = ExitCode(status);
  return {true, output.Lines() + (code == 0 ? std::string() : errors.Lines()), code};
}

}  // namespace mardel
