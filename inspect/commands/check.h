// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <ostream>

#include "check/stream_check.h"
#include "commands/command.h"

namespace inspect {

/// Holds the stream to ETSI TR 101 290.
class CheckCommand final : public Command {
 public:
  explicit CheckCommand(Showing const& showing) : out_(showing.out), as_json_(showing.as_json) {}

  PacketSink* packet_sink() override { return &check_; }
  void finish() override;
  /// Of priority 1 or 2, or a section that cannot be read.
  bool has_finding() const override;

 private:
  void show(Section const&) override {}

  std::ostream& out_;
  bool as_json_;
  StreamCheck check_;
};

}  // namespace inspect
