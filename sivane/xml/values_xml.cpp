// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Values that several descriptors hold as elements.
#include <sivane/foundation/application_identifier.h>
#include <sivane/foundation/length_prefixed_string.h>
#include <sivane/foundation/multilingual_name_info.h>
#include <sivane/foundation/text.h>
#include <sivane/foundation/time.h>
#include <sivane/xml/archive.h>

namespace sivane {

using xml::Archive;

static void fields(Archive& ar, DateTime& v) {
  ar.attr(u"day", v.day);
  ar.attr(u"month", v.month);
  ar.attr(u"year", v.year);
  ar.attr(u"hour", v.hour);
  ar.attr(u"minute", v.minute);
  ar.attr(u"second", v.second);
}
SIVANE_XML_RECORD(DateTime)

static void fields(Archive& ar, TimeOffset& v) {
  ar.attr(u"hour", v.hour);
  ar.attr(u"minute", v.minute);
}
SIVANE_XML_RECORD(TimeOffset)

static void fields(Archive& ar, ApplicationIdentifier& v) {
  ar.attr(u"organisation_id", v.organisation_id);
  ar.attr(u"application_id", v.application_id);
}
SIVANE_XML_RECORD(ApplicationIdentifier)

static void fields(Archive& ar, LengthPrefixedString& v) {
  ar.attr(u"length", v.length);
  ar.attr(u"value", v.value);
}
SIVANE_XML_RECORD(LengthPrefixedString)

static void fields(Archive& ar, MultilingualNameInfo& v) {
  ar.attr(u"name", v.name);
  ar.attr(u"text_len", v.text_len);
  ar.attr(u"ISO_639_language_code", v.ISO_639_language_code);
}
SIVANE_XML_RECORD(MultilingualNameInfo)
MultilingualNameInfo::MultilingualNameInfo(void* node) { Parse(node); }

}  // namespace sivane
