// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The texts of coded values, as value_texts.txt lists them.
#include <gtest/gtest.h>
#include <sivane/descriptors/descriptor_set.h>

#include <map>
#include <set>
#include <string>

#include "expect_error.h"

namespace sivane::testing {
namespace {

using TextOf = std::function<std::string(int)>;

/// The text that `getter` gives with `member` set.
template <class Owner>
TextOf by(int Owner::*member, char const* (Owner::*getter)() const) {
  return [=](int value) {
    Owner owner;
    owner.*member = value;
    return std::string((owner.*getter)());
  };
}

std::string genre(int nibbles) {
  DescriptorContent::Content content;
  content.content_nibble_level1 = nibbles >> 4;
  content.content_nibble_level2 = nibbles & 0xF;
  return content.get_content_nibble_level2_text();
}

using Satellite = DescriptorSatelliteDeliverySystem;
using Content = DescriptorContent::Content;
using Signalled = DescriptorApplicationSignalling::ApplicationInfo;
using Teletext = DescriptorTeletext::TeletextItem;

std::map<std::string, TextOf> const sources = {
    {"hierarchy_type",
     by(&DescriptorHierarchy::hierarchy_type, &DescriptorHierarchy::get_hierchy_type_string)},
    {"alignment_type", by(&DescriptorDataStreamAlignment::alignment_type,
                          &DescriptorDataStreamAlignment::get_alignment_type_string)},
    {"sys_id", by(&DescriptorCa::sys_id, &DescriptorCa::get_ca_provider1)},
    {"polarization", by(&Satellite::polarization, &Satellite::get_polarization_text)},
    {"modulation", by(&Satellite::modulation, &Satellite::get_modulation_text)},
    {"FEC_inner", by(&Satellite::FEC_inner, &Satellite::get_FEC_inner_text)},
    {"FEC_inner by value", [](int value) { return std::string(Satellite::get_FEC_inner_text(value)); }},
    {"coding_type",
     by(&DescriptorFrequencyList::coding_type, &DescriptorFrequencyList::get_coding_type_text)},
    {"service_type", [](int value) { return std::string(DescriptorService::get_service_type_text(value)); }},
    {"teletext_type", by(&Teletext::teletext_type, &Teletext::get_teletext_type_text)},
    {"application_type", by(&Signalled::application_type, &Signalled::get_application_type_text)},
    {"programme_identification_label", by(&DescriptorPDC::programme_identification_label,
                                          &DescriptorPDC::get_programme_identification_label_text)},
    {"tag", [](int value) { return std::string(DescriptorGeneral(value, nullptr, 0).get_tag_text()); }},
    {"content_nibble_level1", by(&Content::content_nibble_level1, &Content::get_content_nibble_level1_text)},
    {"content_nibbles", genre}};

TEST(ValueText, OfEveryValue) {
  std::set<std::string> listed;
  for (Step const& step : read_steps("descriptors/value_texts.txt")) {
    listed.insert(step.title);
    std::size_t end = 0;
    int const first = std::stoi(step.argument, &end, 16);
    int const last = std::stoi(step.argument.substr(end), nullptr, 16);
    expect_lines(step, {{"text", text_runs(first, last, sources.at(step.title))}});
  }
  EXPECT_EQ(listed.size(), sources.size());
}

TEST(ValueText, OfNibblesThatOnlyDocumentsHold) {
  Content content;
  content.content_nibble_level2 = 1;
  for (int const level1 : {0x10000001, 0x7FFFFFFF, -0x7FFFFFFF - 1}) {
    content.content_nibble_level1 = level1;
    EXPECT_STREQ(content.get_content_nibble_level2_text(), genre(0).c_str()) << level1;
  }
}

}  // namespace
}  // namespace sivane::testing
