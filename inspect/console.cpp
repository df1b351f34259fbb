// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "console.h"

#include <iostream>
#include <utility>
#include <vector>

#include "text/visible.h"

namespace inspect {

namespace {

constinit bool is_quiet = false;
constinit bool shows_progress = false;
constinit std::vector<std::string> conclusions;

}  // namespace

void report(std::string_view line) {
  clear_progress();
  std::cerr << "sivane-inspect: " << visible(line) << '\n';
}

void note(std::string_view line) {
  if (!is_quiet) report(line);
}

void be_quiet() { is_quiet = true; }

void conclude(std::string line) { conclusions.push_back(std::move(line)); }

void print_conclusions() {
  for (std::string const& line : conclusions) note(line);
  conclusions.clear();
}

void show_progress(std::string_view line) {
  clear_progress();
  if (is_quiet) return;
  std::cerr << line << std::flush;
  shows_progress = true;
}

void clear_progress() {
  if (shows_progress) std::cerr << "\r\x1B[K";
  shows_progress = false;
}

std::string grouped(long long number) {
  std::string digits = std::to_string(number);
  for (std::size_t end = digits.size(); end > 3 + (number < 0 ? 1u : 0u);) digits.insert(end -= 3, 1, ',');
  return digits;
}

std::string counted(long long number, std::string_view noun) {
  return grouped(number) + ' ' + std::string(noun) + (number == 1 ? "" : "s");
}

}  // namespace inspect
