// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "command_list.h"

#include "commands/check.h"
#include "commands/diff.h"
#include "commands/dump.h"
#include "commands/events.h"
#include "commands/json.h"
#include "commands/m3u.h"
#include "commands/networks.h"
#include "commands/programs.h"
#include "commands/report.h"
#include "commands/sections.h"
#include "commands/services.h"
#include "commands/xml.h"
#include "commands/xmltv.h"

namespace inspect {

namespace {

template <class Class>
std::unique_ptr<Command> make(Showing const& showing) {
  return std::make_unique<Class>(showing);
}

constexpr Input all_inputs[] = {Input::ts, Input::packets, Input::sections, Input::xml, Input::json};
constexpr std::span<Input const> with_json = all_inputs;
constexpr std::span<Input const> any = with_json.first(4);
constexpr std::span<Input const> bytes = any.first(3);
constexpr std::span<Input const> packets = any.first(2);
constexpr std::span<Input const> stream = any.first(1);

constexpr Parsing strict = Parsing::strict, tolerant = Parsing::tolerant;

constexpr CommandRow rows[] = {
    {"dump", "Print every section as text", any, strict, make<DumpCommand>},
    {"xml", "Save all sections as one XML document", any, strict, make<XmlCommand>},
    {"json", "Print every section as a line of JSON", any, strict, make<JsonCommand>,
     CommandRow::Offer::names},
    {"sections", "List every section as a line of hexadecimal: PID TABLE_ID HEX", bytes, strict,
     make<SectionsCommand>},
    {"services", "List the services with their names, types and states", bytes, tolerant,
     make<ServicesCommand>},
    {"events", "List the events with their times (UTC) and names", bytes, tolerant, make<EventsCommand>},
    {"programs",
     "List programs with their PIDs, stream types, languages, CA systems and shares of the packets", bytes,
     tolerant, make<ProgramsCommand>},
    {"networks", "List networks, bouquets and CA systems with their names", bytes, tolerant,
     make<NetworksCommand>},
    {"xmltv", "Write the events as an XMLTV document", bytes, tolerant, make<XmltvCommand>},
    {"m3u", "Write the services as a playlist, in the order of channel numbers", packets, tolerant,
     make<M3uCommand>},
    {"check", "Hold the stream to ETSI TR 101 290 and more, and list what is violated", stream, tolerant,
     make<CheckCommand>, CommandRow::Offer::json},
    {"report", "Make one HTML page of what is in the stream, and of what is wrong with it", stream, tolerant,
     make<ReportCommand>},
    {"diff", "Tell what two sources do not have in common", with_json, tolerant, make<DiffCommand>,
     CommandRow::Offer::json, CommandRow::Sources::two},
};

}  // namespace

std::span<CommandRow const> command_list() { return rows; }

std::string_view name_of(Input input) {
  constexpr std::string_view names[] = {"ts", "packets", "sections", "xml", "json"};
  return names[static_cast<int>(input)];
}

}  // namespace inspect
