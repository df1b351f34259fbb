// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <string>

#include "commands/command.h"
#include "input/dvb_calls.h"
#include "options.h"
#include "run_end.h"

namespace inspect {

/// Whether `source` begins with dvb://.
bool is_dvb(std::string const& source);

/// Gives sections of a DVB adapter (dvb://ADAPTER[/DEMUX]) to the command, up to the end of the run.
/// Something else has tuned it. Each PID is a filter of its own in the kernel, so that packets of other PIDs
/// never get here; a kernel's buffer that has run over is told, and the run goes on. Throws `NoInput` where
/// the device cannot be opened, `InputFault` where it fails later.
void read_dvb(Options const& options, Command& command, RunEnd& end, DvbCalls& calls = system_calls());

}  // namespace inspect
