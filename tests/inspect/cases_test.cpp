// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Runs the commands of the case files and compares what they print; README.md in their folder tells the
// notation.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>
#include <sstream>

#include "case_file.h"
#include "case_input.h"
#include "file_contents.h"
#include "run_inspect.h"

namespace sivane::testing {
namespace {

constexpr char const* files[] = {"command_line", "dump",    "extended", "lists",   "names",
                                 "sections",     "packets", "ts",       "samples", "xml"};
constexpr std::string_view keys[] = {"run", "try", "out", "part", "class", "err", "status"};

using Texts = std::vector<std::string>;

/// A block of a case file: the texts of each key, and the lines that make up the input.
struct RunCase {
  std::string title;
  std::map<std::string, Texts> texts;
  std::vector<Line> input;
};

RunCase read(Block const& block) {
  RunCase one{block.title, {}, {}};
  for (Line const& line : block.lines) {
    auto const& [key, text] = split(line);
    bool const is_input = std::ranges::find(keys, key) == std::end(keys);
    is_input ? one.input.push_back(line) : one.texts[key].push_back(text);
  }
  return one;
}

Texts lines_of(std::string const& text) {
  std::istringstream stream(text);
  Texts lines;
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

/// How many sections of each class a dump shows; "error" counts those that failed.
std::string classes_of(std::string const& dump) {
  std::map<std::string, int> counts;
  bool is_title = false;
  for (std::string const& line : lines_of(dump)) {
    if (is_title && line.starts_with("error ")) ++counts["error"];
    is_title = line.starts_with("== ");
    if (is_title) ++counts[line.substr(line.rfind(' ') + 1)];
  }
  std::string text;
  for (auto const& [name, count] : counts)
    text += (text.empty() ? "" : " ") + name + ' ' + std::to_string(count);
  return text;
}

/// Whole lines with a key in front, as a case file has them: to be pasted from the message of a failure.
std::string keyed(std::string const& key, Texts const& lines) {
  std::string result;
  for (std::string const& line : lines) result += '\n' + (key + std::string(7 - key.size(), ' ') + line);
  return result;
}

void expect_outcome(std::map<std::string, Texts> texts, Outcome const& run) {
  if (!texts["class"].empty()) {
    EXPECT_EQ(classes_of(run.out), texts["class"].front());
  } else if (texts["part"].empty()) {
    EXPECT_EQ(keyed("out", lines_of(run.out)), keyed("out", texts["out"]));
  }
  for (std::string const& part : texts["part"])
    EXPECT_NE(run.out.find(part), std::string::npos) << part << '\n' << run.out;
  if (texts["err"] == Texts{"*"}) {
    EXPECT_EQ(lines_of(run.err).size(), 1u) << run.err;
  } else {
    EXPECT_EQ(keyed("err", lines_of(run.err)), keyed("err", texts["err"]));
  }
  EXPECT_EQ(run.status, texts["status"].empty() ? 0 : std::stoi(texts["status"].front()));
}

std::string name_of(std::string const& file, std::string const& title) {
  std::string name = file + '_' + title;
  std::ranges::replace_if(
      name, [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
  return name;
}

class CaseRun : public ::testing::Test {
 public:
  explicit CaseRun(RunCase one) : one_(std::move(one)) {}

 private:
  void TestBody() override {
    for (std::string const& arguments : one_.texts["run"]) {
      bool const needs_samples = arguments.find('%') != std::string::npos;
      if (needs_samples && !std::filesystem::is_directory(SIVANE_SAMPLES)) GTEST_SKIP() << "no samples";
      if (one_.texts["try"].empty()) run(arguments, make_input(one_.input));
      for (std::string const& line : one_.texts["try"]) run(arguments, make_input({{"line   " + line, 0}}));
    }
  }

  void run(std::string const& arguments, Bytes const& input) {
    SCOPED_TRACE(arguments + '\n' +
                 std::string(input.begin(), input.begin() + std::min<long>(300, std::ssize(input))));
    expect_outcome(one_.texts, inspect(arguments, input));
  }

  RunCase one_;
};

bool const registered = [] {
  for (char const* const file : files) {
    std::string const path = "inspect/cases/" + std::string(file) + ".txt";
    for (Block const& block : read_blocks(path)) {
      RunCase const one = read(block);
      ::testing::RegisterTest("Inspect", name_of(file, one.title).c_str(), nullptr, nullptr, __FILE__,
                              __LINE__, [one]() -> ::testing::Test* { return new CaseRun(one); });
    }
  }
  return true;
}();

TEST(InspectReadme, ShowsWhatServicesPrints) {
  std::string const readme = contents(SIVANE_ROOT "/README.md");
  Outcome const run = inspect("services examples/sample/sample.ts");
  EXPECT_NE(readme.find("services examples/sample/sample.ts\n" + run.out + "```\n"), std::string::npos)
      << run.out;
}

// What a document keeps of real streams dumps and saves again as the same text.
TEST(InspectSamples, SurviveTheirDocuments) {
  if (!std::filesystem::is_directory(SIVANE_SAMPLES)) GTEST_SKIP() << "no samples";
  for (auto const& entry : std::filesystem::directory_iterator(SIVANE_SAMPLES)) {
    if (entry.path().extension() != ".ts") continue;
    std::string const quoted = "'" + entry.path().string() + "'";
    std::string const document = inspect("xml " + quoted).out;
    EXPECT_EQ(inspect("dump --input xml @", document).out, inspect("dump " + quoted).out);
    EXPECT_EQ(inspect("xml --input xml @", document).out, document);
  }
}

}  // namespace
}  // namespace sivane::testing
