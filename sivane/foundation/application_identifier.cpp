// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/application_identifier.h>
#include <sivane/foundation/dump_lines.h>
#include <sivane/foundation/scan.h>

#include <cstdio>

namespace sivane {

ApplicationIdentifier::ApplicationIdentifier(unsigned char const* data) {
  Reader reader = Reader::trusting(data);
  *this = ApplicationIdentifier(reader);
}

ApplicationIdentifier::ApplicationIdentifier(Reader& reader)
    : organisation_id(reader.u32()), application_id(reader.u16()) {}

void ApplicationIdentifier::dump_state(std::ostream& os) const {
  dump::line(os, "organisation_id: ", organisation_id);
  dump::line(os, "application_id: ", application_id);
}

std::string ApplicationIdentifier::application_identifier_as_text() const {
  char text[8 + 1 + 8 + 1];
  std::snprintf(text, sizeof text, "%08X %04X", organisation_id, static_cast<unsigned int>(application_id));
  return text;
}

bool ApplicationIdentifier::set_application_identifier_from_text(char const* text) {
  scan_numbers(text, 16, organisation_id, application_id);
  return true;
}

}  // namespace sivane
