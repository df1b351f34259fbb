// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/descriptors/descriptor_set.h>

#include <functional>
#include <map>
#include <sstream>
#include <string>

#include "case_file.h"

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

/// What gives the texts of a block, and the last value asked for.
struct Source {
  char const* title;
  TextOf text_of;
  int last = 300;
};

Source const sources[] = {
    {"hierarchy_type",
     by(&DescriptorHierarchy::hierarchy_type, &DescriptorHierarchy::get_hierchy_type_string)},
    {"alignment_type", by(&DescriptorDataStreamAlignment::alignment_type,
                          &DescriptorDataStreamAlignment::get_alignment_type_string)},
    {"sys_id", by(&DescriptorCa::sys_id, &DescriptorCa::get_ca_provider1), 0x10200},
    {"polarization", by(&Satellite::polarization, &Satellite::get_polarization_text)},
    {"modulation", by(&Satellite::modulation, &Satellite::get_modulation_text)},
    {"FEC_inner", by(&Satellite::FEC_inner, &Satellite::get_FEC_inner_text)},
    {"FEC_inner", [](int value) { return std::string(Satellite::get_FEC_inner_text(value)); }},
    {"coding_type",
     by(&DescriptorFrequencyList::coding_type, &DescriptorFrequencyList::get_coding_type_text)},
    {"service_type", [](int value) { return std::string(DescriptorService::get_service_type_text(value)); }},
    {"teletext_type", by(&DescriptorTeletext::TeletextItem::teletext_type,
                         &DescriptorTeletext::TeletextItem::get_teletext_type_text)},
    {"application_type", by(&DescriptorApplicationSignalling::ApplicationInfo::application_type,
                            &DescriptorApplicationSignalling::ApplicationInfo::get_application_type_text)},
    {"programme_identification_label", by(&DescriptorPDC::programme_identification_label,
                                          &DescriptorPDC::get_programme_identification_label_text)},
    {"tag", [](int value) { return std::string(DescriptorGeneral(value, nullptr, 0).get_tag_text()); }},
    {"content_nibble_level1", by(&Content::content_nibble_level1, &Content::get_content_nibble_level1_text)},
    {"content_nibbles", genre, 0xFF},
};

struct Texts {
  std::map<int, std::string> by_value;
  std::string other;
};

void read_line(std::string const& line, Texts& texts) {
  std::size_t const blank = line.find(' ');
  std::string text = line.substr(blank + 1);
  if (line.starts_with("else ")) {
    texts.other = text;
    return;
  }
  std::size_t used = 0;
  int value = std::stoi(line, &used, 16);
  if (line[used] == '-') {
    int const last = std::stoi(line.substr(used + 1), nullptr, 16);
    while (value <= last) texts.by_value[value++] = text;
    return;
  }
  for (std::size_t end; (end = text.find("; ")) != std::string::npos; text.erase(0, end + 2)) {
    texts.by_value[value++] = text.substr(0, end);
  }
  texts.by_value[value] = text;
}

std::map<std::string, Texts> read_texts() {
  std::map<std::string, Texts> all;
  for (Block const& block : read_blocks("descriptors/cases/value_texts.txt")) {
    for (Line const& line : block.lines) read_line(line.text, all[block.title]);
  }
  return all;
}

TEST(ValueText, OfEveryValue) {
  std::map<std::string, Texts> const all = read_texts();
  std::map<std::string, Texts> left = all;
  for (Source const& source : sources) {
    SCOPED_TRACE(source.title);
    Texts const& texts = all.at(source.title);
    left.erase(source.title);
    for (int value = -2; value <= source.last; ++value) {
      auto const found = texts.by_value.find(value);
      EXPECT_EQ(source.text_of(value), found != texts.by_value.end() ? found->second : texts.other) << value;
    }
  }
  EXPECT_TRUE(left.empty()) << "nothing gives these: " << left.begin()->first;
}

}  // namespace
}  // namespace sivane::testing
