// Tables of calls and scripts of commands, kept as files. Their words stand between blanks; a word
// in double quotes may hold blanks, and the escapes of C for what a line cannot show.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <sstream>
#include <string>
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

// The table is tests/fixtures/tables/`name`: each line is a function, its arguments, its result.
inline void ExpectTable(const std::string& name, const table_functions& functions) {
  std::istringstream lines(ReadAll(MARDEL_SOURCE_DIR "/tests/fixtures/tables/" + name));
  for (std::string line; std::getline(lines, line);) {
    if (line.empty() || line.starts_with('#')) continue;
    arguments words = Words(line);
    const std::string function = TakeFirst(words), result = words.at(words.size() - 1);
    words.pop_back();
    EXPECT_EQ(functions.at(function)(words), result) << line;
  }
}

// Plays each script of tests/fixtures/`kind` with a player of its own: an unindented line is a
// command, the indented lines below it are all that it is to bring about. `Do` takes the words of a
// command and returns those lines.
template <class player>
void ExpectScripts(const std::string& kind) {
  for (const auto& file : Fixtures(kind)) {
    const std::string script = ReadAll(file);
    std::istringstream lines(script);
    std::string played;
    player run;
    for (std::string line; std::getline(lines, line);) {
      if (line.starts_with("  ")) continue;
      played += line + '\n';
      if (line.empty() || line.starts_with('#')) continue;
      for (const std::string& each : run.Do(Words(line))) {
        played += "  " + Replaced(each, "\n", "\n  ") + '\n';
      }
    }
    EXPECT_EQ(played, script) << file;
  }
}

}  // namespace mardel
