// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/tables/eit.h>

#include <algorithm>
#include <string>

#include "eit_text.h"

namespace sivane::testing {
namespace {

using catalogue::Catalogue;
using catalogue::Event;

/// The titles of the service's events, by start and event_id.
std::string titles(Catalogue const& catalogue) {
  std::string text;
  for (auto const* entry : catalogue.events_of(service_7)) text += entry->second.title() + ' ';
  return text;
}

/// What changed, as the numbers of the actions and the events.
std::string news(catalogue::Changes const& changes) {
  std::string text;
  for (auto const& change : changes) {
    text += "+~-"[static_cast<int>(change.action)];
    if (auto const* event = std::get_if<catalogue::EventKey>(&change.key))
      text += std::to_string(event->event);
  }
  return text;
}

TEST(CatalogueEvents, GoWhenAWholeNewerVersionLeavesThemOut) {
  Catalogue catalogue;
  EXPECT_EQ(news(add(catalogue, eit_text({.last = 8}, titled(1, "a") + titled(2, "b")))), "+1+2");
  EXPECT_EQ(news(add(catalogue, eit_text({.number = 8, .last = 8, .last_in_segment = 9}, titled(3, "c")))),
            "+3");
  EXPECT_EQ(news(add(catalogue, eit_text({.number = 9, .last = 8, .last_in_segment = 9}, titled(4, "d")))),
            "+4");
  // What moves to a section that comes later stays meanwhile.
  EXPECT_EQ(news(add(catalogue, eit_text({.version = 1, .last = 8}, titled(1, "a")))), "");
  EXPECT_EQ(news(add(catalogue, eit_text({.version = 1, .number = 8, .last = 8, .last_in_segment = 9}, ""))),
            "");
  EXPECT_EQ(titles(catalogue), "a b c d ");
  std::string const last =
      eit_text({.version = 1, .number = 9, .last = 8, .last_in_segment = 9}, titled(3, "C"));
  EXPECT_EQ(news(add(catalogue, last)), "~3-2-4");
  EXPECT_EQ(news(add(catalogue, last)), "");
  EXPECT_EQ(titles(catalogue), "a C ");
}

TEST(CatalogueEvents, GoWhereASectionIsMissingOnceTheOthersHaveComeRound) {
  Catalogue catalogue;
  add(catalogue, eit_text({}, titled(1, "a")));
  std::string const first = eit_text({.version = 1, .last = 16}, titled(2, "b"));
  EXPECT_EQ(news(add(catalogue, first)), "+2");
  EXPECT_EQ(news(add(catalogue, first)), "");
  EXPECT_EQ(
      news(add(catalogue, eit_text({.version = 1, .number = 16, .last = 16, .last_in_segment = 16}, ""))),
      "");
  EXPECT_EQ(news(add(catalogue, first)), "-1");
}

TEST(CatalogueEvents, StayWhileAnotherTableNamesThem) {
  Catalogue catalogue;
  add(catalogue, eit_text({.table_id = 0x4E, .last = 1}, titled(1, "a")));
  add(catalogue, eit_text({.table_id = 0x50}, titled(1, "a") + titled(2, "b")));
  EXPECT_EQ(news(add(catalogue, eit_text({.table_id = 0x50, .version = 1}, ""))), "-2");
  EXPECT_EQ(catalogue.present_event(service_7)->first.event, 1);
  EXPECT_EQ(catalogue.following_event(service_7), nullptr);
  EXPECT_EQ(news(add(catalogue, eit_text({.table_id = 0x4E, .version = 1, .last = 1}, titled(3, "c")))),
            "+3~");
  EXPECT_EQ(news(add(catalogue,
                     eit_text({.table_id = 0x4E, .version = 1, .number = 1, .last = 1}, titled(4, "d")))),
            "+4~-1");
  EXPECT_EQ(catalogue.present_event(service_7)->second.title(), "c");
  EXPECT_EQ(catalogue.following_event(service_7)->second.title(), "d");
}

TEST(CatalogueEvents, AreTakenAgainWhereTheVersionIsTheSameAndTheBytesAreNot) {
  Catalogue catalogue;
  add(catalogue, eit_text({}, titled(1, "a")));
  EXPECT_EQ(news(add(catalogue, eit_text({}, titled(2, "b")))), "+2-1");
}

TEST(CatalogueEvents, OfTheNextVersionAreNotTaken) {
  Catalogue catalogue;
  std::string text = eit_text({}, titled(1, "a"));
  text.replace(text.find(" C1 "), 4, " C0 ");
  EXPECT_TRUE(add(catalogue, text).empty());
  Eit eit;
  eit.current_next_indicator = 0;
  eit.event_infos.resize(1);
  EXPECT_TRUE(catalogue.add(eit).empty());
  EXPECT_TRUE(catalogue.events().empty());
}

TEST(CatalogueEvents, HaveTheirTextsPutTogetherByLanguageAndNumber) {
  Catalogue catalogue;
  add(catalogue, eit_text({}, event_text(1, R"(
      4E[ 12 "deu" [ [05 "Regie"] ["Z"] ] ["c"] ] 4E[ 02 "deu" [ [05 "Von"] ["Y"] ] ["a"] ]
      4E[ 12 "deu" [] ["twice"] ] 4E[ 00 "fra" [] ["f"] ] 4E[ 22 "deu" [] ["e"] ]
      4D[ "deu" [05 FC "ber"] ["kurz"] ] 4D[ "f/a" ["titre"] [] ]
      54[ 14 2A ] 55[ "DEU" 09 ] 50[ 15 0B 07 "eng" "wide" ] 50[ 09 05 08 "eng" ]
      76[ 04 [ "/a" ] 09 0001 ] 76[ 08 [ "x.tv/b" E9 ] ] 76[ 04 02 "c" ])")));
  Event const& event = *catalogue.find({service_7, 1});
  ASSERT_EQ(event.texts.size(), 3u);
  catalogue::EventText const& german = event.texts[0];
  EXPECT_EQ(german.title, "\u00FCber");
  EXPECT_EQ(german.short_text, "kurz");
  EXPECT_EQ(german.extended_text, "ace");
  ASSERT_EQ(german.items.size(), 2u);
  EXPECT_EQ(german.items[0].description + german.items[0].text + german.items[1].text, "VonYZ");
  EXPECT_EQ(event.texts[1].language + event.texts[1].title, "f?atitre");
  EXPECT_EQ(event.texts[2].language + event.texts[2].extended_text, "fraf");
  EXPECT_EQ(event.genres, (std::vector<catalogue::Genre>{{1, 4, 0x2A}}));
  EXPECT_EQ(event.ratings[0].minimum_age(), 12);
  EXPECT_EQ(event.components,
            (std::vector<catalogue::Component>{{5, 1, 11, 7, "eng", "wide"}, {9, 0, 5, 8, "eng", ""}}));
  EXPECT_STREQ(event.components[1].coding_name(), "HEVC video");
  EXPECT_EQ(event.content_ids, (std::vector<catalogue::ContentId>{{1, "/a"}, {2, "x.tv/b%E9"}}));
}

TEST(CatalogueEvents, HaveIdentifiersOfTheNearestDefaultAuthority) {
  Catalogue catalogue;
  catalogue::ContentId const here = {1, "/a"}, elsewhere = {2, "x.tv/b"};
  auto const uri = [&] { return here.uri(catalogue.default_authority(service_7)); };
  EXPECT_EQ(uri(), "/a");
  add(catalogue, "41 B( 0001 C1 00 00 F( 73[ \"other.tv\" ] ) F( 0002 0001 F() ) crc )");
  EXPECT_EQ(uri(), "crid://other.tv/a");
  add(catalogue, "40 B( 0003 C1 00 00 F( 73[ \"net.tv\" ] ) F( 0002 0001 F() ) crc )");
  EXPECT_EQ(uri(), "crid://net.tv/a");
  add(catalogue, "40 B( 0003 C3 00 00 F( 73[ \"net.tv\" ] ) F( 0002 0001 F( 73[ \"ts.tv\" ] ) ) crc )");
  EXPECT_EQ(uri(), "crid://ts.tv/a");
  add(catalogue, "42 B( 0002 C1 00 00 0001 FF 0007 FC 8( 73[ \"own.tv\" ] ) crc )");
  EXPECT_EQ(uri(), "crid://own.tv/a");
  EXPECT_EQ(elsewhere.uri("own.tv"), "crid://x.tv/b");
}

TEST(CatalogueEvents, KeepTheTextsOfATableThatTellsMoreOfTheSame) {
  Catalogue catalogue;
  std::string const more = R"(4D[ "eng" ["a"] ["short"] ] 4E[ 00 "eng" [] ["long"] ])";
  add(catalogue, eit_text({}, event_text(1, more)));
  add(catalogue, eit_text({.table_id = 0x4E}, titled(1, "a")));
  catalogue::EventText const* text = &catalogue.find({service_7, 1})->texts[0];
  EXPECT_EQ(text->short_text + text->extended_text, "shortlong");
  add(catalogue, eit_text({.table_id = 0x4E, .version = 1}, titled(1, "b")));
  text = &catalogue.find({service_7, 1})->texts[0];
  EXPECT_EQ(text->title + text->short_text + text->extended_text, "b");
}

TEST(CatalogueEvents, RunAsAnyTableSaysThatKnows) {
  Catalogue catalogue;
  auto const status = [&] { return catalogue.find({service_7, 1})->running_status; };
  add(catalogue, eit_text({.table_id = 0x4E}, "0001 E8A8 180000 010000 80 00"));
  EXPECT_EQ(status(), 4);
  add(catalogue, eit_text({}, titled(1, "a")));
  EXPECT_EQ(status(), 4);
  EXPECT_EQ(news(add(catalogue, "71 7( 0002 0001 0007 0001 01 0002 0001 0007 0009 04 )")), "~1");
  EXPECT_EQ(status(), 1);
}

TEST(CatalogueTimes, HaveEveryDayOfTwoEras) {
  constexpr int days_before_1970 = 40587, seconds_a_day = 86400;
  for (int mjd = 0; mjd < 0x10000; ++mjd) {
    unsigned char const bytes[] = {static_cast<unsigned char>(mjd >> 8), static_cast<unsigned char>(mjd),
                                   0x23, 0x59, 0x58};
    auto const time = catalogue::time_of(DateTime(bytes));
    long long const day = (mjd < 0x8000 ? mjd + 0x10000 : mjd) - days_before_1970;
    ASSERT_TRUE(time) << mjd;
    ASSERT_EQ(time->time_since_epoch().count(), (day + 1) * seconds_a_day - 2) << mjd;
  }
}

TEST(CatalogueTimes, AreNoneWhereUndefined) {
  for (char const* const text : {"FFFF FFFFFF", "E8A8 240000", "E8A8 006000", "E8A8 000060"}) {
    EXPECT_FALSE(catalogue::time_of(DateTime(hex(text).data()))) << text;
  }
  EXPECT_FALSE(catalogue::duration_of(Duration(hex("FFFFFF").data())));
  EXPECT_FALSE(catalogue::duration_of(Duration(hex("006000").data())));
  EXPECT_EQ(catalogue::duration_of(Duration(hex("990102").data()))->count(), 99 * 3600 + 62);
  Catalogue catalogue;
  add(catalogue, "70 7( 7FFF 000001 )");
  EXPECT_EQ(catalogue.time()->time_since_epoch().count(), (0x7FFF + 0x10000 - 40587) * 86400LL + 1);
}

TEST(CatalogueTimes, AreLocalToRegions) {
  using namespace std::chrono_literals;
  Catalogue catalogue;
  add(catalogue,
      "73 7( E8A8 120000 F( 58[ \"DEU\" 00 0100 E8A9 010000 0200 \"PRT\" 0B 0130 FFFF FFFFFF 0000 ] ) crc )");
  auto const& local = catalogue.local_time_offsets();
  auto const now = *catalogue.time();
  ASSERT_EQ(local.size(), 2u);
  EXPECT_EQ(local[0], (catalogue::LocalTimeOffset{"DEU", 0, 60min, now + 13h, 120min}));
  EXPECT_EQ(local[1], (catalogue::LocalTimeOffset{"PRT", 2, -90min, std::nullopt, 0min}));
  std::size_t const held = catalogue.memory();
  add(catalogue, "73 7( E8A8 120000 F() crc )");
  EXPECT_LT(catalogue.memory(), held);
  EXPECT_TRUE(local.empty());
}

TEST(CatalogueEvents, ThatArePastAreForgottenOnRequest) {
  Catalogue catalogue;
  add(catalogue,
      eit_text({}, titled(1, "a") + "0002 FFFF FFFFFF 010000 00 00 0003 E8A9 180000 010000 00 00"));
  EXPECT_EQ(news(catalogue.forget_events_before(*catalogue.find({service_7, 1})->end())), "-1");
  EXPECT_EQ(catalogue.events_of(service_7).front()->first.event, 3);
  EXPECT_EQ(catalogue.events_of(service_7).back()->first.event, 2);
}

}  // namespace
}  // namespace sivane::testing
