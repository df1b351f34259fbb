// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Values that several descriptors hold as elements.
#include <sivane/fields/field_list.h>
#include <sivane/foundation/application_identifier.h>
#include <sivane/foundation/length_prefixed_string.h>
#include <sivane/foundation/multilingual_name_info.h>
#include <sivane/foundation/text.h>
#include <sivane/foundation/time.h>

namespace sivane {

RECORD_FIELDS(DateTime) {
  f.add(FIELD(day), 16);  // all three are of one Modified Julian Date
  f.add(FIELD(month), 16);
  f.add(FIELD(year), 16);
  f.add(FIELD(hour), 8);
  f.add(FIELD(minute), 8);
  f.add(FIELD(second), 8);
}

RECORD_FIELDS(TimeOffset) {
  f.add(FIELD(hour), 8);
  f.add(FIELD(minute), 8);
}

RECORD_FIELDS(ApplicationIdentifier) {
  f.add(FIELD(organisation_id), 32);
  f.add(FIELD(application_id), 16);
}

RECORD_FIELDS(LengthPrefixedString) {
  f.add(FIELD(length), 8);
  f.add(FIELD(value));
}

RECORD_FIELDS(MultilingualNameInfo) {
  f.text(FIELD(name));
  f.add(FIELD(text_len), 8);
  f.add(FIELD(ISO_639_language_code));
}
MultilingualNameInfo::MultilingualNameInfo(void* node) { Parse(node); }

}  // namespace sivane
