// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Genre texts (ETSI EN 300 468, table 28); odd spellings stay as they are.
#include <sivane/descriptors/event.h>
#include <sivane/descriptors/value_text.h>

namespace sivane {

namespace {

constexpr char const* undefined = "undefined/user defined/reserved for future use";

constexpr char const* level1_texts[] = {
    "Movie/Drama",
    "News/Current affairs",
    "Show/Game show",
    "Sports",
    "Children/Youth programmes",
    "Music/Ballet/Dance",
    "Arts/Culture (without music)",
    "Social/Political issues/Economics",
    "Education/Science/Factual topics",
    "Leisure/Hobbies",
    "Special Charateristics",
};

/// The level 2 texts of each level 1 from 1 on.
constexpr char const* level2_texts[][16] = {
    {
        "movie/drama (general)",
        "detective/thriller",
        "adventure/western/war",
        "science fiction/fantasy/horror",
        "comedy",
        "soap/melodrama/folkloric",
        "romance",
        "serious/classical/religious/historical movie/drama",
        "adult movie/drama",
    },
    {
        "news/current affairs (general)",
        "news/weather report",
        "news magazine",
        "documentary",
        "discussion/interview/debate",
    },
    {
        "show/game show (general)",
        "game show/quiz/contest",
        "variety show",
        "talk show",
    },
    {
        "sports (general)",
        "special events (Olympic Games, World Cupt etc.)",
        "sports magazines",
        "football/soccer",
        "tennis/squash",
        "team sports (exluding football)",
        "athletics",
        "motor sport",
        "water sport",
        "winther sports",
        "equestrian",
        "martial sports",
    },
    {
        "children/youth programmes (general)",
        "pre-school children's programmes",
        "entertainment programmes for 6 - 14",
        "entertainment programmes for 10 - 16",
        "informational/educational/schools programmes",
        "cartoons/puppets",
    },
    {
        "music/ballet/dance (general)",
        "rock/pop",
        "serious music/classical music",
        "folk/tradional music",
        "jazz",
        "musical/opera",
        "ballet",
    },
    {
        "arts/culture (without music) (general)",
        "performing arts",
        "fine arts",
        "religion",
        "popular culture/traditional arts",
        "literature",
        "film/cinema",
        "experimental film/video",
        "broadcasting/press",
        "new media",
        "arts/culture magazines",
        "fashion",
    },
    {
        "social/political issues/economics (general)",
        "magazines/reports/documentary",
        "economics/social advisory",
        "remarkable people",
    },
    {
        "education/science/factual topics (general)",
        "nature/animals/environment",
        "technology/natural sciences",
        "medicine/physiology/psychology",
        "foriegn countries/expeditions",
        "social/spiritual sciences",
        "further education",
        "languages",
    },
    {
        "leisure/hobbies (general)",
        "tourism/travel",
        "handicraft",
        "motoring",
        "fitness & health",
        "cooking",
        "advertisement/shopping",
        "gardening",
    },
    {
        "origianl language",
        "black & white",
        "unpublished",
        "live broadcast",
    },
};

}  // namespace

char const* DescriptorContent::Content::get_content_nibble_level1_text() const {
  return value_text(level1_texts, content_nibble_level1, undefined, 1);
}

char const* DescriptorContent::Content::get_content_nibble_level2_text() const {
  long long const index =
      content_nibble_level1 * 16LL + content_nibble_level2 - 16;  // documents hold any int
  constexpr int count = static_cast<int>(sizeof level2_texts / sizeof *level2_texts) * 16;
  if (index < 0 || index >= count) return undefined;
  return value_text(level2_texts[index / 16], static_cast<int>(index % 16), undefined);
}

}  // namespace sivane
