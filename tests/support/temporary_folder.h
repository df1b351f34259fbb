// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <stdexcept>
#include <string>

namespace sivane::testing {

/// A folder of the test's own, gone at its end.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "sivane-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = name;
  }
  TemporaryFolder(TemporaryFolder const&) = delete;
  TemporaryFolder& operator=(TemporaryFolder const&) = delete;
  ~TemporaryFolder() { std::filesystem::remove_all(path_); }

  std::string file(std::string const& name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};

}  // namespace sivane::testing
