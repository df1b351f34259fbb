// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "commands/command.h"

namespace inspect {

enum class Input { ts, packets, sections, xml, json };

/// A subcommand. The constructor asks for every part of it, so that none can be left out.
struct CommandRow {
  enum class Offer { nothing, json, names };
  enum class Sources { one, two };
  using Make = std::unique_ptr<Command>(Showing const& showing);

  constexpr CommandRow(char const* its_name, char const* its_help, std::span<Input const> its_inputs,
                       Parsing its_parsing, Make& its_make, Offer its_offer = Offer::nothing,
                       Sources its_sources = Sources::one)
      : name(its_name),
        help(its_help),
        inputs(its_inputs),
        parsing(its_parsing),
        make(&its_make),
        offer(its_offer),
        reads_two(its_sources == Sources::two) {}

  /// Those that show each section as it comes show it as it is: the others gather, and print at the end.
  bool prints_at_end() const { return parsing == Parsing::tolerant; }

  char const* name;
  char const* help;
  std::span<Input const> inputs;  ///< what it can read
  Parsing parsing;                ///< unless the user chooses
  Make* make;
  Offer offer;     ///< the option of its own: --json gives what it shows to programs
  bool reads_two;  ///< whether it compares two sources
};

std::span<CommandRow const> command_list();

/// The word that --input takes.
std::string_view name_of(Input input);

}  // namespace inspect
