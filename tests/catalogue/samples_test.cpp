// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What broadcasts have, by what is known of them.
#include <gtest/gtest.h>
#include <sivane/demux/demux.h>
#include <sivane/foundation/section_size.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "eit_text.h"

namespace sivane::testing {
namespace {

class Recording final : public DemuxPush {
 public:
  explicit Recording(std::string const& name) {
    set_reassembly(Reassembly::every_section);
    add_psi_handler(0, 0);
    add_psi_handler(1, 1);
    for (int const table_id : {0x40, 0x41}) add_psi_handler(0x10, table_id);
    for (int const table_id : {0x42, 0x46, 0x4A}) add_psi_handler(0x11, table_id);
    for (int table_id = 0x4E; table_id <= 0x6F; ++table_id) add_psi_handler(0x12, table_id);
    std::ifstream file(std::filesystem::path(SIVANE_SAMPLES) / name, std::ios::binary);
    std::string const bytes((std::istreambuf_iterator<char>(file)), {});
    constexpr std::size_t packet = 188;
    push_data(reinterpret_cast<unsigned char const*>(bytes.data()),
              static_cast<int>(bytes.size() / packet * packet));
  }

  catalogue::Catalogue catalogue;
  int news = 0;  // sections that changed something

 protected:
  void on_psi_section(int pid, int table_id, int, unsigned char const* section) override {
    news += catalogue.add(pid, section, static_cast<std::size_t>(section_size(section))).empty() ? 0 : 1;
    if (table_id != 0) return;
    for (auto const& [key, program] : catalogue.programs()) add_psi_handler(*program.map_pid, 2);
  }
};

/// Counts, and a service with its place in the list and its present event.
struct Facts {
  char const* file;
  std::size_t networks, services, programs, events;
  catalogue::ServiceKey service;
  char const* name;
  int number;
  char const* present;
};

TEST(CatalogueOfSamples, HasWhatIsKnownOfThem) {
  if (!std::filesystem::exists(SIVANE_SAMPLES)) GTEST_SKIP() << "no samples";
  Facts const all[] = {
      {"satellite-fr.ts", 1, 5, 5, 976, {0x20FA, 6, 0x601}, "TF1", 1, "50' inside. \"Le mag\" (55/106)"},
      {"satellite-it.ts", 1, 20, 20, 0, {272, 6000, 1}, "Italia 1", 0, ""},
      {"terrestrial-at.ts", 0, 0, 16, 37, {}, "", 0, ""},
      {"terrestrial-fr.ts", 0, 0, 2, 0, {}, "", 0, ""},
      {"terrestrial-tw.ts", 1, 5, 5, 520, {8350, 34, 501}, "華視CTS", 0, "新哆啦A夢(普)"}};
  for (Facts const& facts : all) {
    SCOPED_TRACE(facts.file);
    Recording const recording(facts.file);
    catalogue::Catalogue const& catalogue = recording.catalogue;
    EXPECT_EQ(catalogue.networks().size(), facts.networks);
    EXPECT_EQ(catalogue.services().size(), facts.services);
    EXPECT_EQ(catalogue.programs().size(), facts.programs);
    EXPECT_EQ(catalogue.events().size(), facts.events);
    if (facts.service == catalogue::ServiceKey()) continue;
    ASSERT_NE(catalogue.find(facts.service), nullptr);
    EXPECT_EQ(catalogue.find(facts.service)->name, facts.name);
    auto const number = catalogue.channel_number(facts.service);
    EXPECT_EQ(number ? number->number : 0, facts.number);
    auto const* const present = catalogue.present_event(facts.service);
    EXPECT_EQ(present == nullptr ? "" : present->second.title(), facts.present);
  }
}

}  // namespace
}  // namespace sivane::testing
