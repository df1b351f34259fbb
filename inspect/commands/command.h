// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/charset/charset.h>
#include <sivane/tables/seen_sections.h>

#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "input/packet_counts.h"
#include "input/packet_sink.h"
#include "input/section.h"
#include "tables/table_classes.h"

namespace inspect {

/// Why a section could not be shown.
struct Failure {
  std::string_view class_name;  ///< "-" where the host itself refused the section
  int code;
  std::string what;
  int offset = -1;  ///< of the byte in the section; -1 where there is none
};

/// What a descriptor that fails costs: all of its section, or nothing else and a line on standard error.
enum class Parsing { strict, tolerant };

/// What a command is made for.
struct Showing {
  std::ostream& out;
  bool is_terminal = false;               ///< a person may be looking at `out`
  sivane::charset::Options charset = {};  ///< how the texts of a broadcast become UTF-8
  std::string source = {};                ///< as the user named it
  bool as_json = false;                   ///< for a program, where the command has a choice
  bool as_documents = false;              ///< of tables what documents keep of them
  bool with_names = false;                ///< what codes stand for, where the command has a choice
};

/// What the program does with the sections of its input. It numbers them from 1, and reports and counts those
/// that fail.
class Command {
 public:
  virtual ~Command() = default;

  /// False where the section's CRC turned out to be wrong.
  bool take(Section const& section);
  /// Takes the place of a section that the input could not make out.
  void take_broken(char const* reason);
  void set_parsing(Parsing parsing) { parsing_ = parsing; }
  /// Leaves out the sections that were shown before and are the same.
  void show_changes_alone() { seen_.emplace(); }
  /// Called after the last section of each source.
  virtual void finish() {}

  /// Whether the packets of all PIDs are to be counted; `take_packets` gets them before `finish`.
  virtual bool wants_packets() const { return false; }
  virtual void take_packets(PacketCounts const&) {}
  /// Takes the packets themselves in place of sections; null for commands that look at sections alone.
  virtual PacketSink* packet_sink() { return nullptr; }
  /// Whether the run ends with status 1 although no section failed; asked after `finish`.
  virtual bool has_finding() const { return false; }

  int number() const { return number_; }
  int failures() const { return failures_; }
  int problems() const { return problems_; }  ///< that tolerant parsing has passed over

 protected:
  virtual void show(Section const& section) = 0;
  virtual void show_failure(Section const&, Failure const&) {}
  /// Leaves those tags in the options whose descriptors are shown.
  virtual void choose_tags(sivane::ParseOptions&) const {}

  /// A fresh object of the section's class, filled; null, and the failure shown, where that cannot be.
  std::unique_ptr<Table> table_of(Section const& section);
  /// What was passed over in the table made last.
  std::vector<sivane::ParseProblem> const& latest_problems() const { return latest_problems_; }

 private:
  void fail(Section const& section, Failure const& failure);
  void tell_problems(Section const& section, std::string_view class_name);
  /// A failure of the host itself.
  void refuse(Section const& section, char const* reason);

  int number_ = 0;
  int failures_ = 0;
  int problems_ = 0;
  Parsing parsing_ = Parsing::strict;
  std::vector<sivane::ParseProblem> latest_problems_;
  std::optional<sivane::SeenSections> seen_;  // where only changes are shown
  bool has_right_crc_ = true;                 // of the latest section, as far as it was looked at
};

}  // namespace inspect
