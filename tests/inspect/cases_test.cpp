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

constexpr char const* files[] = {"command_line", "dump", "lists",   "sections",
                                 "packets",      "ts",   "samples", "xml"};

/// A block of a case file.
struct RunCase {
  std::string title;
  std::vector<std::string> runs, tries, parts;
  std::vector<Line> input;
  std::string out, err, classes;
  int status = 0;
};

RunCase read(Block const& block) {
  RunCase one;
  one.title = block.title;
  for (Line const& line : block.lines) {
    auto const& [key, text] = split(line);
    if (key == "run") {
      one.runs.push_back(text);
    } else if (key == "try") {
      one.tries.push_back(text);
    } else if (key == "out") {
      one.out += text + '\n';
    } else if (key == "err") {
      one.err += text + '\n';
    } else if (key == "part") {
      one.parts.push_back(text);
    } else if (key == "class") {
      one.classes = text;
    } else if (key == "status") {
      one.status = std::stoi(text);
    } else {
      one.input.push_back(line);
    }
  }
  return one;
}

/// How many sections of each class a dump shows; "error" counts those that failed.
std::string classes_of(std::string const& dump) {
  std::map<std::string, int> counts;
  std::istringstream lines(dump);
  bool is_title = false;
  for (std::string line; std::getline(lines, line);) {
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
std::string keyed(std::string const& key, std::string const& text) {
  std::istringstream lines(text);
  std::string result;
  for (std::string line; std::getline(lines, line);)
    result += '\n' + (key + std::string(7 - key.size(), ' ') + line);
  return result;
}

void expect_outcome(RunCase const& one, Outcome const& run) {
  if (!one.classes.empty()) {
    EXPECT_EQ(classes_of(run.out), one.classes);
  } else if (one.parts.empty()) {
    EXPECT_EQ(keyed("out", run.out), keyed("out", one.out));
  }
  for (std::string const& part : one.parts)
    EXPECT_NE(run.out.find(part), std::string::npos) << part << '\n' << run.out;
  if (one.err == "*\n") {
    EXPECT_EQ(line_count(run.err), 1) << run.err;
  } else {
    EXPECT_EQ(keyed("err", run.err), keyed("err", one.err));
  }
  EXPECT_EQ(run.status, one.status);
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
    bool const needs_samples = std::ranges::any_of(
        one_.runs, [](std::string const& run) { return run.find('%') != std::string::npos; });
    if (needs_samples && !std::filesystem::is_directory(SIVANE_SAMPLES)) GTEST_SKIP() << "no samples";
    for (std::string const& arguments : one_.runs) {
      if (one_.tries.empty()) run(arguments, make_input(one_.input));
      for (std::string const& line : one_.tries) run(arguments, make_input({{"line   " + line, 0}}));
    }
  }

  void run(std::string const& arguments, Bytes const& input) {
    SCOPED_TRACE(arguments + '\n' +
                 std::string(input.begin(), input.begin() + std::min<long>(300, std::ssize(input))));
    expect_outcome(one_, inspect(arguments, input));
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
