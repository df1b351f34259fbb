// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/registry/codes.h>

#include <cstddef>
#include <iterator>

namespace sivane {

namespace {

constexpr char const* stream_types[] = {
    nullptr,
    "MPEG-1 video",
    "MPEG-2 video",
    "MPEG-1 audio",
    "MPEG-2 audio",
    "private sections",
    "private data",
    "MHEG",
    "DSM-CC",
    "H.222.1",
    "DSM-CC multiprotocol encapsulation",
    "DSM-CC carousel",
    "DSM-CC stream events",
    "DSM-CC sections",
    "auxiliary data",
    "AAC audio (ADTS)",
    "MPEG-4 video",
    "AAC audio (LATM)",
    "MPEG-4 SL in PES packets",
    "MPEG-4 SL in sections",
    "DSM-CC synchronised download",
    "metadata in PES packets",
    "metadata in sections",
    "metadata in a data carousel",
    "metadata in an object carousel",
    "metadata in a synchronised download",
    "IPMP of MPEG-2",
    "H.264 video",
    "MPEG-4 audio",
    "MPEG-4 text",
    "auxiliary video",
    "H.264 scalable layer",
    "H.264 further view",
    "JPEG 2000 video",
    "MPEG-2 further view",
    "H.264 further view of plano-stereoscopic video",
    "HEVC video",
    "HEVC temporal layer",
    nullptr,
    "timeline (TEMI)",
    nullptr,
    nullptr,
    nullptr,
    nullptr,
    nullptr,
    "MPEG-H 3D audio",
    "MPEG-H 3D audio, auxiliary",
    nullptr,
    nullptr,
    nullptr,
    nullptr,
    "VVC video",
    "VVC temporal layer",
    "EVC video",
    "LCEVC enhancement",
};
constexpr int ipmp = 0x7F;

constexpr char const* service_types[] = {
    nullptr,
    "digital television service",
    "digital radio sound service",
    "teletext service",
    "NVOD reference service",
    "NVOD time-shifted service",
    "mosaic service",
    "FM radio service",
    "DVB SRM service",
    nullptr,
    "advanced codec digital radio sound service",
    "H.264/AVC mosaic service",
    "data broadcast service",
    nullptr,
    "RCS map",
    "RCS FLS",
    "DVB MHP service",
    "MPEG-2 HD digital television service",
    nullptr,
    nullptr,
    nullptr,
    nullptr,
    "H.264/AVC SD digital television service",
    "H.264/AVC SD NVOD time-shifted service",
    "H.264/AVC SD NVOD reference service",
    "H.264/AVC HD digital television service",
    "H.264/AVC HD NVOD time-shifted service",
    "H.264/AVC HD NVOD reference service",
    "H.264/AVC plano-stereoscopic HD digital television service",
    "H.264/AVC plano-stereoscopic HD NVOD time-shifted service",
    "H.264/AVC plano-stereoscopic HD NVOD reference service",
    "HEVC digital television service",
    "HEVC UHD digital television service",
    "VVC digital television service",
    "AVS3 digital television service",
};

/// A row for each group; the first of a row is the group's own name.
constexpr char const* genres[][12] = {
    {},
    {"movie/drama", "detective/thriller", "adventure/western/war", "science fiction/fantasy/horror", "comedy",
     "soap/melodrama/folkloric", "romance", "serious/classical/religious/historical movie/drama",
     "adult movie/drama"},
    {"news/current affairs", "news/weather report", "news magazine", "documentary",
     "discussion/interview/debate"},
    {"show/game show", "game show/quiz/contest", "variety show", "talk show"},
    {"sports", "special events", "sports magazines", "football/soccer", "tennis/squash", "team sports",
     "athletics", "motor sport", "water sport", "winter sports", "equestrian", "martial sports"},
    {"children's/youth programmes", "pre-school children's programmes", "entertainment for 6 to 14",
     "entertainment for 10 to 16", "informational/educational/school programmes", "cartoons/puppets"},
    {"music/ballet/dance", "rock/pop", "serious/classical music", "folk/traditional music", "jazz",
     "musical/opera", "ballet"},
    {"arts/culture", "performing arts", "fine arts", "religion", "popular culture/traditional arts",
     "literature", "film/cinema", "experimental film/video", "broadcasting/press", "new media",
     "arts/culture magazines", "fashion"},
    {"social/political issues/economics", "magazines/reports/documentary", "economics/social advisory",
     "remarkable people"},
    {"education/science/factual topics", "nature/animals/environment", "technology/natural sciences",
     "medicine/physiology/psychology", "foreign countries/expeditions", "social/spiritual sciences",
     "further education", "languages"},
    {"leisure hobbies", "tourism/travel", "handicraft", "motoring", "fitness and health", "cooking",
     "advertisement/shopping", "gardening"},
    {nullptr},
    {"adult"},
};
/// Of group 0xB, which has no name of its own.
constexpr char const* characteristics[] = {"original language", "black and white",    "unpublished",
                                           "live broadcast",    "plano-stereoscopic", "local or regional"};

constexpr char const* codings[] = {
    nullptr,      "MPEG-2 video",    "MPEG-1 Layer 2 audio", "teletext or subtitles",
    "AC-3 audio", "H.264/AVC video", "HE-AAC audio",         "DTS audio",
    "SRM data",
};
/// With stream_content 9, by the extension.
constexpr char const* further_codings[] = {"HEVC video", "next generation audio", "TTML subtitles"};

template <std::size_t count>
char const* at(char const* const (&names)[count], int index) {
  return index >= 0 && index < static_cast<int>(count) ? names[index] : nullptr;
}

}  // namespace

char const* stream_type_name(int stream_type) noexcept {
  return stream_type == ipmp ? "IPMP" : at(stream_types, stream_type);
}

char const* service_type_name(int service_type) noexcept { return at(service_types, service_type); }

char const* genre_name(int content_nibble_level_1, int content_nibble_level_2) noexcept {
  constexpr int special = 0xB, users = 0xF;
  if (content_nibble_level_2 == users) return nullptr;
  if (content_nibble_level_1 == special) return at(characteristics, content_nibble_level_2);
  if (content_nibble_level_1 < 0 || content_nibble_level_1 >= static_cast<int>(std::size(genres)))
    return nullptr;
  auto const& group = genres[content_nibble_level_1];
  char const* const name = at(group, content_nibble_level_2);
  return name != nullptr ? name : group[0];
}

char const* component_coding_name(int stream_content, int stream_content_ext, int component_type) noexcept {
  constexpr int ac3 = 4, extended = 9, first_of_enhanced_ac3 = 0x80;
  if (stream_content == extended) return at(further_codings, stream_content_ext);
  if (stream_content == ac3 && component_type >= first_of_enhanced_ac3) return "enhanced AC-3 audio";
  return at(codings, stream_content);
}

}  // namespace sivane
