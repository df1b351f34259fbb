// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/event.h>
#include <sivane/xml/archive.h>

namespace sivane {

using xml::Archive;

static void fields(Archive& ar, DescriptorShortEvent& d) {
  ar.attr(u"language_code", d.language_code);
  ar.attr(u"event_name", d.event_name);
  ar.attr(u"text", d.text);
}
SIVANE_XML(DescriptorShortEvent)

static void fields(Archive& ar, DescriptorExtendedEvent::Item& r) {
  ar.attr(u"description", r.description);
  ar.attr(u"item", r.item);
}
SIVANE_XML_RECORD(DescriptorExtendedEvent::Item)

static void fields(Archive& ar, DescriptorExtendedEvent& d) {
  ar.attr(u"descriptor_number", d.descriptor_number);
  ar.attr(u"last_descriptor_number", d.last_descriptor_number);
  ar.attr(u"language_code", d.language_code);
  ar.list(u"items", u"item", d.items);
}
SIVANE_XML(DescriptorExtendedEvent)

static void fields(Archive& ar, DescriptorTimeShiftedEvent& d) {
  ar.attr(u"reference_service_id", d.reference_service_id);
  ar.attr(u"reference_event_id", d.reference_event_id);
}
SIVANE_XML(DescriptorTimeShiftedEvent)

static void fields(Archive& ar, DescriptorComponent& d) {
  ar.attr(u"stream_content", d.stream_content);
  ar.attr(u"component_type", d.component_type);
  ar.attr(u"component_tag", d.component_tag);
  ar.attr(u"language_code", d.language_code);
}
SIVANE_XML(DescriptorComponent)

static void fields(Archive& ar, DescriptorContent::Content& r) {
  ar.attr(u"content_nibble_level1", r.content_nibble_level1);
  ar.attr(u"content_nibble_level2", r.content_nibble_level2);
  ar.attr(u"user_nibble1", r.user_nibble1);
  ar.attr(u"user_nibble2", r.user_nibble2);
}
SIVANE_XML_RECORD(DescriptorContent::Content)

static void fields(Archive& ar, DescriptorContent& d) { ar.list(u"contents", u"content", d.contents); }
SIVANE_XML(DescriptorContent)

static void fields(Archive& ar, DescriptorParentalRating::RatingInfo& r) {
  ar.attr(u"rating", r.rating);
  ar.attr(u"country_code", r.country_code);
}
SIVANE_XML_RECORD(DescriptorParentalRating::RatingInfo)

static void fields(Archive& ar, DescriptorParentalRating& d) {
  ar.list(u"ratinginfo", u"info", d.ratinginfo);
}
SIVANE_XML(DescriptorParentalRating)

static void fields(Archive& ar, DescriptorLocalTimeOffset::LocalTime& r) {
  ar.attr(u"country_region_id", r.country_region_id);
  ar.attr(u"local_time_offset_polarity", r.local_time_offset_polarity);
  ar.attr(u"country_code", r.country_code);
  ar.child(u"local_time_offset", r.local_time_offset);
  ar.child(u"time_of_change", r.time_of_change);
  ar.child(u"next_time_offset", r.next_time_offset);
}
SIVANE_XML_RECORD(DescriptorLocalTimeOffset::LocalTime)

static void fields(Archive& ar, DescriptorLocalTimeOffset& d) { ar.list(u"localtime", u"time", d.localtime); }
SIVANE_XML(DescriptorLocalTimeOffset)

static void fields(Archive& ar, DescriptorPDC& d) {
  ar.attr(u"programme_identification_label", d.programme_identification_label);
}
SIVANE_XML(DescriptorPDC)

static void fields(Archive& ar, DescriptorMultilingualComponent& d) {
  ar.list(u"nameinfo", u"info", d.nameinfo);
}
SIVANE_XML(DescriptorMultilingualComponent)

}  // namespace sivane
