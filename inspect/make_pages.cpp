// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Part of the build: writes the manual page and the completions of the tool into a folder.
#include <exception>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>

#include "pages/pages.h"

namespace {

void write(std::string const& path, std::string const& text) {
  std::ofstream file(path, std::ios::binary);
  if (!(file << text).flush()) throw std::runtime_error("cannot write " + path);
}

}  // namespace

int main(int argc, char** argv) try {
  if (argc != 2) throw std::runtime_error("usage: make_pages FOLDER");
  std::string const folder = argv[1];
  write(folder + "/sivane-inspect.1", inspect::manual_page());
  write(folder + "/sivane-inspect.bash", inspect::bash_completion());
  write(folder + "/_sivane-inspect", inspect::zsh_completion());
  write(folder + "/sivane-inspect.fish", inspect::fish_completion());
  return 0;
} catch (std::exception const& failure) {
  std::cerr << failure.what() << '\n';
  return 1;
}
