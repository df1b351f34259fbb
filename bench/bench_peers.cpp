// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The whole way from packets to decoded descriptors, beside libdvbpsi on the same bytes. Both sides count
// what they got, and must agree.
#include "compare.h"
#include "peer.h"
#include "tables_host.h"

namespace {

using sivane::bench::Decoded;
using sivane::bench::Kinds;

/// The numbers of what one vector of a set holds.
template <class Descriptor, class Read>
void take(Decoded& decoded, std::vector<Descriptor> const& descriptors, Read read) {
  decoded.descriptors += descriptors.size();
  for (Descriptor const& descriptor : descriptors)
    decoded.sum += static_cast<std::uint64_t>(read(descriptor));
}

template <class Items, class Read>
std::uint64_t sum(Items const& items, Read read) {
  std::uint64_t total = 0;
  for (auto const& item : items) total += static_cast<std::uint64_t>(read(item));
  return total;
}

void take_of_guide(Decoded& decoded, sivane::DescriptorSet const& set) {
  take(decoded, set.get_short_event_descriptors(),
       [](auto& d) { return d.event_name.size() + d.text.size(); });
  take(decoded, set.get_extended_event_descriptors(), [](auto& d) { return d.text.size(); });
  take(decoded, set.get_content_descriptors(), [](auto& d) {
    return sum(d.contents, [](auto& c) { return c.content_nibble_level1 << 4 | c.content_nibble_level2; });
  });
}

void take_of_event(Decoded& decoded, sivane::DescriptorSet const& set) {
  take_of_guide(decoded, set);
  take(decoded, set.get_component_descriptors(), [](auto& d) { return d.component_type; });
  take(decoded, set.get_parental_rating_descriptors(),
       [](auto& d) { return sum(d.ratinginfo, [](auto& r) { return r.rating; }); });
}

void take_of_program(Decoded& decoded, sivane::DescriptorSet const& set) {
  take(decoded, set.get_CA_descriptors(), [](auto& d) { return d.pid; });
  take(decoded, set.get_ISO_639_language_descriptors(),
       [](auto& d) { return sum(d.language_vector, [](auto& l) { return l.audio_type; }); });
  take(decoded, set.get_maximum_bitrate_descriptors(), [](auto& d) { return d.maximum_bitrate; });
  take(decoded, set.get_stream_identifier_descriptors(), [](auto& d) { return d.component_tag; });
  take(decoded, set.get_teletext_descriptors(),
       [](auto& d) { return sum(d.teletextitems, [](auto& t) { return t.teletext_page_number; }); });
  take(decoded, set.get_subtitling_descriptors(),
       [](auto& d) { return sum(d.subtitlinginfo, [](auto& s) { return s.composition_page_id; }); });
}

void take_of_network(Decoded& decoded, sivane::DescriptorSet const& set) {
  take(decoded, set.get_network_name_descriptors(), [](auto& d) { return d.network_name.size(); });
  take(decoded, set.get_service_list_descriptors(),
       [](auto& d) { return sum(d.servicelist, [](auto& s) { return s.service_id; }); });
  take(decoded, set.get_satellite_delivery_system_descriptors(), [](auto& d) { return d.FEC_inner; });
  take(decoded, set.get_linkage_descriptors(), [](auto& d) { return d.service_id; });
}

void take_of_service(Decoded& decoded, sivane::DescriptorSet const& set) {
  take(decoded, set.get_service_descriptors(),
       [](auto& d) { return d.provider_name.size() + d.service_name.size(); });
  take(decoded, set.get_country_availability_descriptors(), [](auto& d) { return d.country_code.size(); });
  take(decoded, set.get_CA_identifiers_descriptors(), [](auto& d) { return d.CA_system_id.size(); });
}

enum class Repetitions { decoded, skipped };

/// What a host asks of the library.
struct Wish {
  Repetitions repetitions = Repetitions::decoded;
  Kinds kinds = Kinds::all;
};

class Host final : public sivane::bench::TablesHost {
 public:
  explicit Host(Wish wish) : wish_(wish) { options_.build_only({0x4D, 0x4E, 0x54}); }
  Decoded decoded;

 protected:
  void on_psi_section(int pid, int table_id, int, unsigned char const* section) override {
    if (wish_.repetitions == Repetitions::skipped && !seen_.is_new(pid, section)) return;
    auto const use = [this](auto const& table) { take(table); };
    if (wish_.kinds == Kinds::all) return sivane::bench::with_table(table_id, section, use);
    auto const size = static_cast<std::size_t>(sivane::section_size(section));
    auto const parse = [&](auto& table) { table.Parse(section, size, options_); };
    sivane::bench::with_table(table_id, parse, use);
  }

 private:
  void take(sivane::Pat const& pat) { decoded.entries += pat.program_infos.size(); }
  void take(sivane::Pmt const& pmt) {
    take_of_program(decoded, pmt);
    entries(pmt.stream_infos, take_of_program);
  }
  void take(sivane::Nit const& nit) {
    take_of_network(decoded, nit);
    entries(nit.stream_infos, take_of_network);
  }
  void take(sivane::Sdt const& sdt) { entries(sdt.service_infos, take_of_service); }
  void take(sivane::Eit const& eit) { entries(eit.event_infos, take_of_event); }

  template <class Entries>
  void entries(Entries const& all, void (*take_of)(Decoded&, sivane::DescriptorSet const&)) {
    decoded.entries += all.size();
    for (auto const& entry : all) take_of(decoded, entry);
  }

  Wish wish_;
  sivane::ParseOptions options_;  // of a programme guide
  sivane::SeenSections seen_;
};

Decoded decode(sivane::testing::Bytes const& stream, Wish wish) {
  Host host(wish);
  host.push(stream);
  return host.decoded;
}

constexpr std::size_t megabyte = 1000000;
constexpr int times = 2;  // each round of tables, or libdvbpsi would not see a whole EIT

/// Libdvbpsi always leaves out repetitions.
void against_dvbpsi(benchmark::State& state, sivane::bench::Stream const& stream, Wish wish) {
  Decoded theirs, ours;
  sivane::bench::compare(
      state, stream.bytes.size(), "the time of sivane",
      [&] { theirs = sivane::bench::decode_with_dvbpsi(stream.bytes, wish.kinds); },
      [&] { ours = decode(stream.bytes, wish); });
  bool const whole =
      ours.descriptors > 0 && ours == theirs.times(wish.repetitions == Repetitions::decoded ? times : 1);
  if (!whole) state.SkipWithError("the two got different things");
}

void tables(benchmark::State& state) {
  against_dvbpsi(state, sivane::bench::tables_stream(64 * megabyte, times), {});
}

void new_tables(benchmark::State& state) {
  against_dvbpsi(state, sivane::bench::tables_stream(64 * megabyte, times),
                 {.repetitions = Repetitions::skipped});
}

void guide_tables(benchmark::State& state) {
  against_dvbpsi(state, sivane::bench::tables_stream(64 * megabyte, times),
                 {.kinds = Kinds::of_a_programme_guide});
}

void new_guide_tables(benchmark::State& state) {
  against_dvbpsi(state, sivane::bench::tables_stream(64 * megabyte, times),
                 {.repetitions = Repetitions::skipped, .kinds = Kinds::of_a_programme_guide});
}

void multiplex(benchmark::State& state) {
  against_dvbpsi(state, sivane::bench::multiplex_stream(256 * megabyte, times), {});
}

}  // namespace

BENCHMARK(tables)
    ->Name("libdvbpsi, tables alone, each twice, which it decodes once")
    ->Apply(sivane::bench::five_times);
BENCHMARK(new_tables)
    ->Name("libdvbpsi, tables alone, each twice, both decoding once")
    ->Apply(sivane::bench::five_times);
BENCHMARK(guide_tables)
    ->Name("libdvbpsi, tables alone, each twice, three kinds of descriptor, which it decodes once")
    ->Apply(sivane::bench::five_times);
BENCHMARK(new_guide_tables)
    ->Name("libdvbpsi, tables alone, each twice, three kinds of descriptor, both decoding once")
    ->Apply(sivane::bench::five_times);
BENCHMARK(multiplex)
    ->Name("libdvbpsi, a multiplex with 3 % of such tables")
    ->Apply(sivane::bench::five_times);
