// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Every value has a text: the getters never give null, whatever bytes or documents put into the members.
#pragma once

#include <sivane/sivane.h>

#include "input.h"

namespace sivane::fuzzing {

inline void check_text(char const* text) { check(text != nullptr, "every value has a text"); }

inline void check_own_texts(DescriptorBase const&) {}
inline void check_own_texts(DescriptorContent const& descriptor) {
  for (DescriptorContent::Content const& content : descriptor.contents) {
    check_text(content.get_content_nibble_level1_text());
    check_text(content.get_content_nibble_level2_text());
  }
}
inline void check_own_texts(DescriptorPDC const& descriptor) {
  check_text(descriptor.get_programme_identification_label_text());
}
inline void check_own_texts(DescriptorService const& descriptor) {
  check_text(DescriptorService::get_service_type_text(descriptor.service_type));
}
inline void check_own_texts(DescriptorSatelliteDeliverySystem const& descriptor) {
  check_text(descriptor.get_polarization_text());
  check_text(descriptor.get_modulation_text());
  check_text(descriptor.get_FEC_inner_text());
}
inline void check_own_texts(DescriptorFrequencyList const& descriptor) {
  check_text(descriptor.get_coding_type_text());
}
inline void check_own_texts(DescriptorTeletext const& descriptor) {
  for (DescriptorTeletext::TeletextItem const& item : descriptor.teletextitems) {
    check_text(item.get_teletext_type_text());
  }
}
inline void check_own_texts(DescriptorApplicationSignalling const& descriptor) {
  for (DescriptorApplicationSignalling::ApplicationInfo const& info : descriptor.application_info) {
    check_text(info.get_application_type_text());
  }
}

template <class Descriptor>
void check_texts(Descriptor const& descriptor) {
  check_text(descriptor.get_tag_text());
  check_own_texts(descriptor);
}

inline void check_texts(DescriptorSet const& set) {
#define SIVANE_ROW(tag, Class, getter, element) \
  for (Class const& descriptor : set.getter()) check_texts(descriptor);
#include <sivane/descriptors/descriptor_rows.inc>
}

}  // namespace sivane::fuzzing
