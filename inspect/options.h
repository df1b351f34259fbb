// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/charset/charset.h>

#include <optional>
#include <string>
#include <vector>

#include "command_list.h"
#include "input/handle.h"

namespace inspect {

/// The words of the command line, before they are understood.
struct Arguments {
  std::string input = "ts";
  std::vector<std::string> handles;
  std::optional<double> seconds;
  std::optional<long long> packets;
  bool follow = false;
  bool quiet = false;
  bool changes = false;
  bool tolerant = false;
  bool strict = false;
  std::string charset;
  std::string charset_always;
  bool as_json = false;
  bool with_names = false;
  std::string source, other_source;
};

/// What the user asked for.
struct Options {
  CommandRow const* command = nullptr;
  Input input = Input::ts;
  Parsing parsing = Parsing::strict;
  std::vector<Handle> handles;  ///< empty: the usual ones
  std::optional<double> seconds;
  std::optional<long long> packets;
  bool follow = false;
  bool changes = false;
  bool quiet = false;
  sivane::charset::Options charset;
  bool as_json = false;
  bool with_names = false;
  std::string source;
  std::string other_source;  ///< of a command that compares two; empty otherwise
  Input other_input = Input::ts;
};

/// Throws `CLI::ValidationError`, which says what cannot be.
Options understand(CommandRow const& row, Arguments const& arguments);

}  // namespace inspect
