// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/event.h>
#include <sivane/fields/field_list.h>

namespace sivane {

void DescriptorShortEvent::_fields(FieldList& f) {
  f.add(FIELD(language_code));
  f.add(FIELD(event_name));
  f.add(FIELD(text));
}

RECORD_FIELDS(DescriptorExtendedEvent::Item) {
  f.add(FIELD(description));
  f.add(FIELD(item));
}

void DescriptorExtendedEvent::_fields(FieldList& f) {
  f.add(FIELD(descriptor_number), 4);
  f.add(FIELD(last_descriptor_number), 4);
  f.add(FIELD(language_code));
  f.list(FIELD(items), u"item");
  f.add(UNSAVED(text));
}

void DescriptorTimeShiftedEvent::_fields(FieldList& f) {
  f.add(FIELD(reference_service_id), 16);
  f.add(FIELD(reference_event_id), 16);
}

void DescriptorComponent::_fields(FieldList& f) {
  f.add(UNSAVED(stream_content_ext), 4);
  f.add(FIELD(stream_content), 4);
  f.add(FIELD(component_type), 8);
  f.add(FIELD(component_tag), 8);
  f.add(FIELD(language_code));
  f.add(UNSAVED(text));
}

RECORD_FIELDS(DescriptorContent::Content) {
  f.add(FIELD(content_nibble_level1), 4);
  f.add(FIELD(content_nibble_level2), 4);
  f.add(FIELD(user_nibble1), 4);
  f.add(FIELD(user_nibble2), 4);
}

void DescriptorContent::_fields(FieldList& f) { f.list(FIELD(contents), u"content"); }

RECORD_FIELDS(DescriptorParentalRating::RatingInfo) {
  f.add(FIELD(rating), 8);
  f.add(FIELD(country_code));
}

void DescriptorParentalRating::_fields(FieldList& f) { f.list(FIELD(ratinginfo), u"info"); }

RECORD_FIELDS(DescriptorLocalTimeOffset::LocalTime) {
  f.add(FIELD(country_region_id), 6);
  f.add(FIELD(local_time_offset_polarity), 1);
  f.add(FIELD(country_code));
  f.child(FIELD(local_time_offset));
  f.child(FIELD(time_of_change));
  f.child(FIELD(next_time_offset));
}

void DescriptorLocalTimeOffset::_fields(FieldList& f) { f.list(FIELD(localtime), u"time"); }

void DescriptorPDC::_fields(FieldList& f) { f.add(FIELD(programme_identification_label), 20); }

void DescriptorMultilingualComponent::_fields(FieldList& f) {
  f.list(FIELD(nameinfo), u"info");
  f.add(UNSAVED(component_tag), 8);
}

}  // namespace sivane
