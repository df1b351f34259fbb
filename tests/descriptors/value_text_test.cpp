// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/descriptors/descriptor_set.h>

#include <map>
#include <string>
#include <vector>

namespace sivane::testing {
namespace {

using Texts = std::map<int, std::string>;

Texts counted(int first, std::vector<std::string> const& in_a_row) {
  Texts texts;
  for (std::string const& text : in_a_row) texts[first++] = text;
  return texts;
}

/// `text_of` gives the text of `texts` where one stands there, and `other` for all other values in -2 to
/// `last`.
template <class TextOf>
void expect_texts(Texts const& texts, std::string const& other, TextOf text_of, int last = 300) {
  for (int value = -2; value <= last; ++value) {
    const auto found = texts.find(value);
    EXPECT_EQ(text_of(value), found != texts.end() ? found->second : other) << value;
  }
}

/// The text that `getter` gives with `member` set.
template <class Owner>
auto text_by(int Owner::*member, char const* (Owner::*getter)() const) {
  return [=](int value) {
    Owner owner;
    owner.*member = value;
    return std::string((owner.*getter)());
  };
}

TEST(ValueText, Hierarchy) {
  expect_texts({{1, "ITU-T Rec. H.262|ISO/IEC 13818-2 Spatial Scalability"},
                {2, "ITU-T Rec. H.262|ISO/IEC 13818-2 SNR Scalability"},
                {3, "ITU-T Rec. H.262|ISO/IEC 13818-2 Temporal Scalability"},
                {4, "ITU-T Rec. H.262|ISO/IEC 13818-2 Data partitioning"},
                {5, "ISO/IEC 13818-3 Extension bitstream"},
                {6, "ITU-T Rec. H.222.0|ISO/IEC 13818-1 Private Stream"},
                {15, "Base Layer"}},
               "reserved",
               text_by(&DescriptorHierarchy::hierarchy_type, &DescriptorHierarchy::get_hierchy_type_string));
}

TEST(ValueText, Alignment) {
  expect_texts({{1, "Slice, or video access unit"}, {2, "video access unit"}, {3, "GOP, or SEQ"}, {4, "SEQ"}},
               "reserved",
               text_by(&DescriptorDataStreamAlignment::alignment_type,
                       &DescriptorDataStreamAlignment::get_alignment_type_string));
}

TEST(ValueText, CaProvider) {
  const std::map<int, std::string> by_high_byte = {
      {0x01, "Canal Plus"},        {0x05, "France Telecom"}, {0x06, "Irdeto"},     {0x09, "News Datacom"},
      {0x0B, "Norwegian Telekom"}, {0x0D, "Philips"},        {0x17, "BetaTechnik"}};
  Texts texts;
  for (auto const& [high, text] : by_high_byte) {
    for (int low = 0; low <= 0xFF; ++low) texts[high * 0x100 + low] = text;
  }
  expect_texts(texts, "unknown provider", text_by(&DescriptorCa::sys_id, &DescriptorCa::get_ca_provider1),
               0x10200);
}

TEST(ValueText, Satellite) {
  using Satellite = DescriptorSatelliteDeliverySystem;
  expect_texts({{0, "linear - horizontal"},
                {1, "linear - vertical"},
                {2, "circular - horizontal"},
                {3, "circular - vertical"}},
               "<unknown>", text_by(&Satellite::polarization, &Satellite::get_polarization_text));
  expect_texts({{0, "not defined"}, {1, "QPSK"}}, "reserved",
               text_by(&Satellite::modulation, &Satellite::get_modulation_text));
  const Texts fec = {{0, "not defined"},    {1, "1/2"}, {2, "2/3"}, {3, "3/4"}, {4, "5/6"}, {5, "7/8"},
                     {7, "no conv. coding"}};
  expect_texts(fec, "reserved", text_by(&Satellite::FEC_inner, &Satellite::get_FEC_inner_text));
  expect_texts(fec, "reserved", [](int value) { return std::string(Satellite::get_FEC_inner_text(value)); });
}

TEST(ValueText, CodingType) {
  expect_texts(
      {{1, "satellite"}, {2, "cable"}, {3, "terrestrial"}}, "undefined",
      text_by(&DescriptorFrequencyList::coding_type, &DescriptorFrequencyList::get_coding_type_text));
}

TEST(ValueText, ServiceType) {
  Texts texts =
      counted(1, {"digital television service", "digital radio sound service", "teletext service",
                  "NVOD reference service", "NVOD time-shifted service", "mosiac service", "PAL coded signal",
                  "SECAM coded signal", "D/D2-MAC", "FM Radio", "NTSC coded signal"});
  for (int type = 128; type <= 254; ++type) texts[type] = "user defined";
  for (int type = 256; type <= 300; ++type) texts[type] = "<unknown>";
  expect_texts(texts, "reserved for future use",
               [](int type) { return std::string(DescriptorService::get_service_type_text(type)); });
}

TEST(ValueText, TeletextType) {
  using Item = DescriptorTeletext::TeletextItem;
  expect_texts(counted(1, {"initial teletext page", "teletext subtitle page", "additional information page",
                           "programme schedule page"}),
               "reserved for future use", text_by(&Item::teletext_type, &Item::get_teletext_type_text));
}

TEST(ValueText, ApplicationType) {
  using Info = DescriptorApplicationSignalling::ApplicationInfo;
  expect_texts({{0, "reserved_future_use"}, {1, "DVB-J application"}, {2, "DVB-HTML application"}},
               "subject to registration with DVB",
               text_by(&Info::application_type, &Info::get_application_type_text));
}

TEST(ValueText, ProgrammeIdentificationLabel) {
  expect_texts({}, "to be implemented",
               text_by(&DescriptorPDC::programme_identification_label,
                       &DescriptorPDC::get_programme_identification_label_text));
}

TEST(ValueText, TagsOfGeneralDescriptors) {
  Texts texts =
      counted(2, {"video_stream_descriptor", "audio_stream_descriptor", "hierachy_descriptor",
                  "registration_descriptor", "data_streeam_descriptor", "target_background_grid_descriptor",
                  "video_window_descriptor", "CA_descriptor", "ISO_639_language_descriptor",
                  "system_clock_descriptor", "multiplex_buffer_utilization_descriptor",
                  "copyright_descriptor", "maximum_bitrate_descriptor", "private_data_indicator_descriptor",
                  "smootihing_descriptor", "STD_descriptor", "IBP_descriptor"});
  texts[-2] = texts[-1] = "Unknown";
  for (int tag = 64; tag <= 300; ++tag) texts[tag] = "User Private";
  expect_texts(texts, "Reserved",
               [](int tag) { return std::string(DescriptorGeneral(tag, nullptr, 0).get_tag_text()); });
}

constexpr char const* no_genre = "undefined/user defined/reserved for future use";

TEST(ValueText, ContentNibble1) {
  using Content = DescriptorContent::Content;
  expect_texts(counted(1, {"Movie/Drama", "News/Current affairs", "Show/Game show", "Sports",
                           "Children/Youth programmes", "Music/Ballet/Dance", "Arts/Culture (without music)",
                           "Social/Political issues/Economics", "Education/Science/Factual topics",
                           "Leisure/Hobbies", "Special Charateristics"}),
               no_genre, text_by(&Content::content_nibble_level1, &Content::get_content_nibble_level1_text));
}

// By the first nibble, then by the second.
const std::vector<std::vector<std::string>> genres = {
    {},
    {"movie/drama (general)", "detective/thriller", "adventure/western/war", "science fiction/fantasy/horror",
     "comedy", "soap/melodrama/folkloric", "romance", "serious/classical/religious/historical movie/drama",
     "adult movie/drama"},
    {"news/current affairs (general)", "news/weather report", "news magazine", "documentary",
     "discussion/interview/debate"},
    {"show/game show (general)", "game show/quiz/contest", "variety show", "talk show"},
    {"sports (general)", "special events (Olympic Games, World Cupt etc.)", "sports magazines",
     "football/soccer", "tennis/squash", "team sports (exluding football)", "athletics", "motor sport",
     "water sport", "winther sports", "equestrian", "martial sports"},
    {"children/youth programmes (general)", "pre-school children's programmes",
     "entertainment programmes for 6 - 14", "entertainment programmes for 10 - 16",
     "informational/educational/schools programmes", "cartoons/puppets"},
    {"music/ballet/dance (general)", "rock/pop", "serious music/classical music", "folk/tradional music",
     "jazz", "musical/opera", "ballet"},
    {"arts/culture (without music) (general)", "performing arts", "fine arts", "religion",
     "popular culture/traditional arts", "literature", "film/cinema", "experimental film/video",
     "broadcasting/press", "new media", "arts/culture magazines", "fashion"},
    {"social/political issues/economics (general)", "magazines/reports/documentary",
     "economics/social advisory", "remarkable people"},
    {"education/science/factual topics (general)", "nature/animals/environment",
     "technology/natural sciences", "medicine/physiology/psychology", "foriegn countries/expeditions",
     "social/spiritual sciences", "further education", "languages"},
    {"leisure/hobbies (general)", "tourism/travel", "handicraft", "motoring", "fitness & health", "cooking",
     "advertisement/shopping", "gardening"},
    {"origianl language", "black & white", "unpublished", "live broadcast"}};

TEST(ValueText, ContentNibble2) {
  for (unsigned int pair = 0; pair <= 0xFF; ++pair) {
    const unsigned int level1 = pair / 16, level2 = pair % 16;
    DescriptorContent::Content content;
    content.content_nibble_level1 = static_cast<int>(level1);
    content.content_nibble_level2 = static_cast<int>(level2);
    const bool has_text = level1 < genres.size() && level2 < genres[level1].size();
    EXPECT_EQ(std::string(content.get_content_nibble_level2_text()),
              has_text ? genres[level1][level2] : no_genre)
        << std::hex << pair;
  }
}

}  // namespace
}  // namespace sivane::testing
