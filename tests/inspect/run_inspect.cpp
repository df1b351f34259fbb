// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "run_inspect.h"

#include <sys/wait.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "file_contents.h"
#include "temporary_folder.h"

namespace sivane::testing {

namespace {

void replace(std::string& text, std::string const& old, std::string const& by) {
  for (std::size_t at = 0; (at = text.find(old, at)) != std::string::npos; at += by.size()) {
    text.replace(at, old.size(), by);
  }
}

}  // namespace

Outcome inspect(std::string arguments, std::string const& input) {
  TemporaryFolder const folder;
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
  std::ostringstream text;
  for (int const byte : bytes) text << std::hex << byte / 16 << byte % 16;
  return text.str();
}

}  // namespace sivane::testing
