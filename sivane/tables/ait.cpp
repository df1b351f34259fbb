// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/dump_lines.h>
#include <sivane/tables/ait.h>
#include <sivane/tables/entry.h>

namespace sivane {

namespace {

constexpr int head_size = 4;
constexpr int entry_head_size = 9;

constexpr Failure descriptors_mismatch{error::length_error, "application common descriptors length mismatch"};
constexpr Failure application_too_small{error::length_error, "application length to small"};
constexpr Failure applications_mismatch{error::length_error, "application length mismatch"};

}  // namespace

Ait::Application::Application(unsigned char const* data, int available, int& consumed) {
  Reader reader = Reader::within(data, available, applications_mismatch);
  *this = Application(reader);
  consumed = reader.consumed();
}

Ait::Application::Application(Reader& reader) {
  reader.need(entry_head_size, application_too_small);
  application_identifer = ApplicationIdentifier(reader);
  application_control_code = reader.u8();
  application_descriptors_loop_length = length_field(reader);
  parse_descriptors(reader, application_descriptors_loop_length, descriptors_mismatch, LoopEnd::exact);
}

void Ait::Application::dump_state(std::ostream& os) const {
  application_identifer.dump_state(os);
  dump::line(os, "application_control_code: ", application_control_code);
  dump::line(os, "application_descriptors_loop_length: ", application_descriptors_loop_length);
  dump_descriptors(os);
}

void Ait::_parse(unsigned char const* body) {
  Reader reader = body_reader(body);
  reader.need(head_size, too_little_data);
  common_descriptors_length = length_field(reader);
  parse_descriptors(reader, common_descriptors_length, descriptors_mismatch, LoopEnd::exact);
  application_loop_length = length_field(reader);
  Reader loop = reader.loop(application_loop_length, applications_mismatch);
  loop.walk(application_infos, applications_mismatch);
}

char const* Ait::get_application_type_text() const {
  switch (get_application_type()) {
    case 0:
      return "reserved_future_use";
    case 1:
      return "DVB-J application";
    case 2:
      return "DVB-HTML application";
    default:
      return "subject to registration with DVB";
  }
}

void Ait::_reset() {
  application_infos.clear();
  clear_general_descriptors();
}

void Ait::_dump_state(std::ostream& os) const {
  dump::line(os, "application_type: ", get_application_type());
  dump::line(os, "common_descriptors_length: ", common_descriptors_length);
  dump_descriptors(os);
  dump::line(os, "application_loop_length: ", application_loop_length);
  dump::each(os, application_infos);
}

}  // namespace sivane
