// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/event.h>
#include <sivane/foundation/dump_lines.h>

#include <ostream>

namespace sivane {

using dump::line;

namespace {
constexpr Failure item_failure{error::no_errorcode, "data length mismatch"};
}  // namespace

// short_event_descriptor

DescriptorShortEvent::DescriptorShortEvent(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  r.code(language_code);
  event_name.parse(r);
  text.parse(r);
}

void DescriptorShortEvent::_dump_state(std::ostream& os) const {
  line(os, "language_code: ", language_code);
  line(os, "event_name: ", event_name);
  line(os, "text: ", text);
}

// extended_event_descriptor

DescriptorExtendedEvent::DescriptorExtendedEvent(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  descriptor_number = r.bits(4);
  last_descriptor_number = r.bits(4);
  r.code(language_code);
  int const length_of_items = r.u8();
  items = r.sub(length_of_items, item_failure).walk<Item>();
  text.parse(r);
}

DescriptorExtendedEvent::Item::Item(unsigned char const* p, int& size)
    : Item(read_record<Item>(Reader::within(p, size, item_failure), size)) {}

DescriptorExtendedEvent::Item::Item(Reader& r) {
  description.parse(r);
  item.parse(r);
}

void DescriptorExtendedEvent::Item::dump_state(std::ostream& os) const {
  line(os, "description: ", description);
  line(os, "item: ", item);
}

void DescriptorExtendedEvent::_dump_state(std::ostream& os) const {
  line(os, "descriptor_number: ", descriptor_number);
  line(os, "last_descriptor_number: ", last_descriptor_number);
  line(os, "language_code: ", language_code);
  line(os, "text: ", text);
  dump::each(os, items);
}

// time_shifted_event_descriptor

DescriptorTimeShiftedEvent::DescriptorTimeShiftedEvent(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  reference_service_id = r.u16();
  reference_event_id = r.u16();
}

void DescriptorTimeShiftedEvent::_dump_state(std::ostream& os) const {
  line(os, "reference_service_id: ", reference_service_id);
  line(os, "reference_event_id: ", reference_event_id);
}

// component_descriptor

DescriptorComponent::DescriptorComponent(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  stream_content_ext = r.bits(4);
  stream_content = r.bits(4);
  component_type = r.u8();
  component_tag = r.u8();
  r.code(language_code);
  text.parse(r, r.left());
}

void DescriptorComponent::_dump_state(std::ostream& os) const {
  line(os, "stream_content: ", stream_content);
  line(os, "component_type: ", component_type);
  line(os, "component_tag: ", component_tag);
  line(os, "language_code: ", language_code);
  line(os, "text: ", text);
}

// content_descriptor

DescriptorContent::DescriptorContent(DescriptorBytes d) : DescriptorBase(d) {
  contents = d.body().records<Content>(2, {error::no_errorcode, "descriptor length mismatch"});
}

DescriptorContent::Content::Content(Reader& r) {
  content_nibble_level1 = r.bits(4);
  content_nibble_level2 = r.bits(4);
  user_nibble1 = r.bits(4);
  user_nibble2 = r.bits(4);
}

void DescriptorContent::Content::dump_state(std::ostream& os) const {
  line(os, "content_nibble_level1: ", content_nibble_level1);
  line(os, "content_nibble_level2: ", content_nibble_level2);
  line(os, "user_nibble1: ", user_nibble1);
  line(os, "user_nibble2: ", user_nibble2);
}

void DescriptorContent::_dump_state(std::ostream& os) const { dump::each(os, contents); }

// parental_rating_descriptor

DescriptorParentalRating::DescriptorParentalRating(DescriptorBytes d) : DescriptorBase(d) {
  ratinginfo = d.body().records<RatingInfo>(4, {error::length_error, "parental_rating_descriptor"});
}

DescriptorParentalRating::RatingInfo::RatingInfo(Reader& r) {
  r.code(country_code);
  rating = r.u8();
}

void DescriptorParentalRating::RatingInfo::_dump_state(std::ostream& os) const {
  line(os, "DescriptorParentalRating::RatingInfo::country_code: ", country_code);
  line(os, "DescriptorParentalRating::RatingInfo::rating: ", rating);
}

void DescriptorParentalRating::_dump_state(std::ostream& os) const {
  for (RatingInfo const& rating : ratinginfo) rating._dump_state(os);
}

// local_time_offset_descriptor

DescriptorLocalTimeOffset::DescriptorLocalTimeOffset(DescriptorBytes d) : DescriptorBase(d) {
  localtime = d.body({error::no_errorcode, "descriptor start end mismatch"}).walk<LocalTime>();
}

DescriptorLocalTimeOffset::LocalTime::LocalTime(unsigned char const* p, int& consumed)
    : LocalTime(read_record<LocalTime>(Reader::trusting(p), consumed)) {}

DescriptorLocalTimeOffset::LocalTime::LocalTime(Reader& r) {
  r.code(country_code);
  country_region_id = r.bits(6);
  r.skip_bits(1);
  local_time_offset_polarity = r.bits(1);
  local_time_offset = TimeOffset(r);
  time_of_change = DateTime(r);
  next_time_offset = TimeOffset(r);
}

void DescriptorLocalTimeOffset::LocalTime::dump_state(std::ostream& os) const {
  line(os, "country_code: ", country_code);
  line(os, "country_region_id: ", country_region_id);
  line(os, "local_time_offset_polarity: ", local_time_offset_polarity);
  dump::line(os, "local_time_offset: ", local_time_offset);
  dump::line(os, "time_of_change: ", time_of_change);
  dump::line(os, "next_time_offset: ", next_time_offset);
}

void DescriptorLocalTimeOffset::_dump_state(std::ostream& os) const { dump::each(os, localtime); }

// PDC_descriptor

DescriptorPDC::DescriptorPDC(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body();
  r.skip_bits(4);
  programme_identification_label = r.bits(20);
}

// A literal of stored dumps, as it is.
char const* DescriptorPDC::get_programme_identification_label_text() const { return "to be implemented"; }

// multilingual_component_descriptor

DescriptorMultilingualComponent::DescriptorMultilingualComponent(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body({error::syntax_error});
  component_tag = r.u8();
  nameinfo = r.walk<MultilingualNameInfo>();
}

void DescriptorMultilingualComponent::_dump_state(std::ostream& os) const {
  line(os, "component_tag: ", component_tag);
  for (MultilingualNameInfo const& name : nameinfo) name._dump_state(os);
}

}  // namespace sivane
