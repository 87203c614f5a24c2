// Plays the scripts in tests/fixtures/host to what reaches files and processes, in a folder "F".
#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <functional>
#include <regex>

#include "platform/files.h"
#include "platform/process.h"
#include "tests/support/script.h"

namespace mardel {
namespace {

constexpr const char* kStatusNames[] = {"written", "not created", "failed", "damaged"};

// In words of scripts, and in what is shown, "{x*N}" stands for N times "x".
std::string Expanded(std::string word) {
  static const std::regex run(R"(\{([^{}*]+)\*(\d+)\})");
  for (std::smatch found; std::regex_search(word, found, run);) {
    std::string text;
    for (int n = std::stoi(found[2]); n > 0; --n) text += found[1];
    word = found.prefix().str() + text + found.suffix().str();
  }
  return word;
}

std::string Shown(const std::string& text) {
  std::ostringstream out;
  for (std::size_t at = 0, end = 0; at < text.size(); at = end) {
    end = std::min(text.find_first_not_of(text[at], at), text.size());
    char letter[8] = {text[at]};
    if (text[at] < ' ' || text[at] > '~') {
      std::snprintf(letter, sizeof letter, "\\x%02x", static_cast<unsigned char>(text[at]));
    }
    if (end - at >= 100) out << '{' << letter << '*' << end - at << '}';
    for (std::size_t i = at; end - at < 100 && i < end; ++i) out << letter;
  }
  return out.str();
}

class host_player {
 public:
  host_player() {
    umask(022);
    if (chdir(folder_.Path().c_str()) != 0 || chmod(".", 0755) != 0) std::abort();
  }
  std::vector<std::string> Do(arguments words) {
    std::ranges::transform(words, words.begin(), Expanded);
    return Named(commands_, TakeFirst(words))(words);
  }

 private:
  using a = const arguments&;
  using lines = std::vector<std::string>;

  lines Shell(const std::string& commands) const {
    const std::string out = streams_.Path() + "out";
    if (std::system(("{ " + commands + "\n} >" + out).c_str()) != 0) return {"fails"};
    std::istringstream text(ReadAll(out));
    lines all;
    for (std::string line; std::getline(text, line);) all.push_back(Shown(line));
    return all;
  }
  static lines List(const std::string& folder, const std::string& suffix) {
    lines names = ListFiles(folder, suffix);
    std::ranges::sort(names);
    return names;
  }
  // As an ordinary user, whom permissions stop; `most` bytes fit on the disk, 0 for any number.
  static lines ReplaceAsNobody(rlim_t most, const std::string& name, const std::string& content) {
    constexpr uid_t kNobody = 65534;
    const pid_t child = fork();
    if (child == 0) {
      const rlimit limit{most, most};
      if (most > 0) setrlimit(RLIMIT_FSIZE, &limit);
      if (geteuid() == 0 && setuid(kNobody) != 0) _exit(1);
      _exit(static_cast<int>(ReplaceFile(name, content)));
    }
    int status = 0;
    waitpid(child, &status, 0);
    return {kStatusNames[WEXITSTATUS(status)]};
  }
  lines Run(const std::string& tool, const std::string& arguments) const {
    const tool_result ended = host_process_runner().RunTool(tool, arguments);
    if (!ended.started) return {"not started" + ended.output};
    const std::string here = folder_.Path().substr(0, folder_.Path().size() - 1);
    return {std::to_string(ended.exit_code) + ": " + Shown(Replaced(ended.output, here, "F"))};
  }
  lines Lock(const std::string& name) {
    locked_ = open(name.c_str(), O_RDONLY | O_CLOEXEC);
    return flock(locked_, LOCK_EX | LOCK_NB) == 0 ? lines{} : lines{"fails"};
  }

  const scratch_folder folder_, streams_;
  int locked_ = -1;
  const std::map<std::string, std::function<lines(a)>> commands_ = {
      {"sh", [this](a w) { return Shell(w[0]); }},
      {"script",
       [this](a w) {
         WriteAll("tool", "#!/bin/sh\n" + w[0] + "\n");
         return Shell("chmod 755 tool");
       }},
      {"run", [this](a w) { return Run(w[0], w[1]); }},
      {"exit_code_of",
       [](a w) {
         std::signal(SIGCHLD, SIG_IGN);  // as some launchers leave it
         return lines{std::to_string(host_process_runner().RunTool(w[0], "").exit_code)};
       }},
      {"read", [](a w) { return lines{Shown(ReadFile(w[0]).value_or("nothing"))}; }},
      {"list", [](a w) { return List(w[0], w[1]); }},
      {"replace",
       [](a w) { return lines{kStatusNames[static_cast<int>(ReplaceFile(w[0], w[1]))]}; }},
      {"replace_as_nobody", [](a w) { return ReplaceAsNobody(0, w[0], w[1]); }},
      {"replace_on_disk_of", [](a w) { return ReplaceAsNobody(std::stoul(w[0]), w[1], w[2]); }},
      {"lock", [this](a w) { return Lock(w[0]); }},
      {"unlock", [this](a) { return close(locked_) == 0 ? lines{} : lines{"fails"}; }},
  };
};

const bool kRegistered = RegisterScripts<host_player>("HostScripts", "host");

}  // namespace
}  // namespace mardel
