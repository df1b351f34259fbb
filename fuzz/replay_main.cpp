// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Runs inputs through a fuzz target without a fuzzer: each argument is a file, or a folder of which each file
// is run.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> files_of(fs::path const& argument) {
  if (!fs::is_directory(argument)) return {argument};
  std::vector<fs::path> files;
  for (fs::directory_entry const& entry : fs::recursive_directory_iterator(argument)) {
    if (entry.is_regular_file()) files.push_back(entry.path());
  }
  return files;
}

bool replay(fs::path const& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    std::cerr << "cannot read " << path << '\n';
    return false;
  }
  std::vector<char> const text{std::istreambuf_iterator<char>(file), {}};
  std::vector<std::uint8_t> const bytes(text.begin(), text.end());
  LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  int replayed = 0;
  for (int i = 1; i < argc; ++i) {
    for (fs::path const& path : files_of(argv[i])) {
      if (!replay(path)) return 1;
      ++replayed;
    }
  }
  std::cout << replayed << " inputs replayed\n";
  return replayed > 0 ? 0 : 1;
}
