// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/dump_line.h>
#include <sivane/foundation/length_prefixed_string.h>

namespace sivane {

LengthPrefixedString::LengthPrefixedString(unsigned char const* data, int /*size*/, int& used)
    : LengthPrefixedString(read_record<LengthPrefixedString>(Reader::trusting(data), used)) {}

LengthPrefixedString::LengthPrefixedString(Reader& reader)
    : length(reader.u8()), value(reader.string(length)) {}

void LengthPrefixedString::dump_state(char const* label, std::ostream& os) const {
  dump::Line(os).text(label).text("_length: ").number(length).end();
  dump::Line(os).text(label).text(": ").text(value.c_str()).end();
}

}  // namespace sivane
