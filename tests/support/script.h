// Tables of calls and scripts of commands, kept as files. Their words stand between blanks; a word
// in double quotes may hold blanks, and the escapes of C for what a line cannot show.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/files.h"

namespace mardel {

using arguments = std::vector<std::string>;
using table_functions = std::map<std::string, std::function<std::string(const arguments&)>>;

// A character of a quoted word; `in` is behind its backslash.
inline char Escaped(std::istream& in) {
  static const std::map<char, char> letters{{'n', '\n'}, {'r', '\r'}, {'t', '\t'},
                                            {'v', '\v'}, {'f', '\f'}, {'0', '\0'}};
  const char letter = static_cast<char>(in.get());
  if (letter != 'x') return letters.contains(letter) ? letters.at(letter) : letter;
  std::string digits(2, '0');
  in.read(digits.data(), 2);
  return static_cast<char>(std::stoi(digits, nullptr, 16));
}

inline arguments Words(const std::string& line) {
  std::istringstream in(line);
  arguments words;
  for (char next = 0; in >> next;) {
    std::string& word = words.emplace_back();
    if (next == '"') {
      while (in.get(next) && next != '"') word += next == '\\' ? Escaped(in) : next;
    } else {
      in.unget() >> word;
    }
  }
  return words;
}

inline std::string TakeFirst(arguments& words) {
  std::string first = words.at(0);
  words.erase(words.begin());
  return first;
}

inline std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size()) {
    text.replace(at, from.size(), to);
  }
  return text;
}

// A misspelt word, which tells itself.
class unknown_word : public std::runtime_error {
 public:
  explicit unknown_word(const std::string& word) : std::runtime_error('"' + word + '"') {}
};

template <class value>
const value& Named(const std::map<std::string, value>& values, const std::string& word) {
  const auto found = values.find(word);
  return found != values.end() ? found->second : throw unknown_word(word);
}

// A number at the start of a word, in front of `rest` or its end.
inline int Number(const std::string& word, const char* rest = "") {
  char* end = nullptr;
  const long value = std::strtol(word.c_str(), &end, 10);
  const bool is_good = end != word.c_str() && std::string_view(end).starts_with(rest);
  if (!is_good || (*rest == '\0' && *end != '\0')) throw unknown_word(word);
  return static_cast<int>(value);
}

// The table is tests/fixtures/tables/`name`: each line is a function, its arguments, its result.
inline void ExpectTable(const std::string& name, const table_functions& functions) {
  std::istringstream lines(ReadAll(MARDEL_SOURCE_DIR "/tests/fixtures/tables/" + name));
  for (std::string line; std::getline(lines, line);) {
    if (line.empty() || line.starts_with('#')) continue;
    arguments words = Words(line);
    const std::string function = TakeFirst(words), result = words.at(words.size() - 1);
    words.pop_back();
    try {
      EXPECT_EQ(Named(functions, function)(words), result) << line;
    } catch (const std::exception& wrong) {
      ADD_FAILURE() << name << ": " << wrong.what() << " in: " << line;
    }
  }
}

// Plays a script with a player of its own: an unindented line is a command, the indented lines
// below it are all that it is to bring about. `Do` takes the words of a command and returns those
// lines.
template <class player>
void PlayScript(const std::string& file) {
  const std::string script = ReadAll(file);
  std::istringstream lines(script);
  std::string played;
  player run;
  int number = 0;
  for (std::string line; std::getline(lines, line);) {
    ++number;
    if (line.starts_with("  ")) continue;
    played += line + '\n';
    if (line.empty() || line.starts_with('#')) continue;
    try {
      for (const std::string& each : run.Do(Words(line))) {
        played += "  " + Replaced(each, "\n", "\n  ") + '\n';
      }
    } catch (const std::exception& wrong) {
      FAIL() << file << ':' << number << ": " << wrong.what() << " in: " << line;
    }
  }
  EXPECT_EQ(played, script) << file;
}

// Makes each script of tests/fixtures/`kind` a test named after it.
template <class player>
bool RegisterScripts(const char* suite, const std::string& kind) {
  class script_test : public testing::Test {
   public:
    explicit script_test(std::string file) : file_(std::move(file)) {}
    void TestBody() override { PlayScript<player>(file_); }

   private:
    std::string file_;
  };
  for (const auto& file : Fixtures(kind)) {
    testing::RegisterTest(suite, file.stem().c_str(), nullptr, nullptr, file.c_str(), 1,
                          [file]() -> testing::Test* { return new script_test(file.string()); });
  }
  return true;
}

}  // namespace mardel
