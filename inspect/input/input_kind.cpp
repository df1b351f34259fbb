// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "input/input_kind.h"

#include <filesystem>
#include <fstream>

namespace inspect {

Input kind_of(std::string const& source, Input otherwise) {
  std::error_code fault;
  if (!std::filesystem::is_regular_file(source, fault)) return otherwise;
  std::string start(5, '\0');
  std::ifstream(source, std::ios::binary).read(start.data(), static_cast<std::streamsize>(start.size()));
  if (start == "<?xml") return Input::xml;
  return start.starts_with("{\"") ? Input::json : otherwise;
}

bool is_lossy(Input a, Input b) {
  return (a == Input::xml && b == Input::json) || (a == Input::json && b == Input::xml);
}

}  // namespace inspect
