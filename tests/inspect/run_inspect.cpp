// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "run_inspect.h"

#include <stdlib.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "file_contents.h"

namespace sivane::testing {

namespace {

/// A folder of this run alone.
class Folder {
 public:
  Folder() {
    std::string name = (std::filesystem::temp_directory_path() / "sivane-inspect-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = name;
  }
  Folder(Folder const&) = delete;
  Folder& operator=(Folder const&) = delete;
  ~Folder() { std::filesystem::remove_all(path_); }

  std::string file(char const* name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_;
};

void replace(std::string& text, std::string const& old, std::string const& by) {
  for (std::size_t at = 0; (at = text.find(old, at)) != std::string::npos; at += by.size()) {
    text.replace(at, old.size(), by);
  }
}

}  // namespace

Outcome inspect(std::string arguments, std::string const& input) {
  Folder const folder;
  std::string const in = folder.file("in");
  std::ofstream(in, std::ios::binary) << input;
  replace(arguments, "@", in);
  replace(arguments, "%", SIVANE_SAMPLES "/");
  std::string const command = "cd '" SIVANE_ROOT "' && ('" SIVANE_INSPECT "' " + arguments + ") < " + in +
                              " > " + folder.file("out") + " 2> " + folder.file("err");
  int const result = std::system(command.c_str());
  std::string err = contents(folder.file("err"));
  replace(err, in, "@");
  replace(err, "sivane-inspect: ", "");
  return {WIFEXITED(result) ? WEXITSTATUS(result) : -1, contents(folder.file("out")), err};
}

Outcome inspect(std::string const& arguments, Bytes const& input) {
  return inspect(arguments, std::string(input.begin(), input.end()));
}

std::string hex_text(Bytes const& bytes) {
  std::string text;
  for (unsigned char const byte : bytes) {
    char digits[3];
    std::snprintf(digits, sizeof digits, "%02x", static_cast<unsigned int>(byte));
    text += digits;
  }
  return text;
}

int line_count(std::string const& text) {
  return static_cast<int>(std::count(text.begin(), text.end(), '\n'));
}

}  // namespace sivane::testing
