// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/catalogue/change.h>
#include <sivane/catalogue/event.h>
#include <sivane/catalogue/keys.h>
#include <sivane/catalogue/network.h>
#include <sivane/catalogue/program.h>
#include <sivane/catalogue/service.h>
#include <sivane/catalogue/times.h>
#include <sivane/charset/charset.h>
#include <sivane/foundation/export.h>
#include <sivane/tables/any_table.h>

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace sivane::catalogue {

/// What a catalogue is made with.
struct Options {
  /// Bytes that it may hold, as `Catalogue::memory` counts them.
  std::size_t memory = std::size_t{1} << 30;
  charset::Options texts;  ///< how texts become UTF-8
};

/// What a transport stream has, put together from its tables in any order: networks, services, programs,
/// events.
///
/// Tables that apply from later on (current_next_indicator 0) are not taken. The same section again changes
/// nothing and costs a look at its version and CRC. Where a section has another version, or another CRC, what
/// it says counts from then on; what no section of the new version names any more goes once all of its
/// sections are there by last_section_number and segment_last_section_number, or one of them has come round
/// for the third time. An event is gone when neither its schedule nor its present and following table names
/// it.
///
/// At the limit of memory nothing new is taken until something goes; `left_out` counts it, and its section is
/// tried again whenever it comes.
///
/// All texts are valid UTF-8. Objects share nothing: one for each multiplex, each used by one thread at a
/// time. What is returned by reference or pointer is good until the next call of a function that is not
/// const.
class SIVANE_API Catalogue {
 public:
  /// Throws `std::invalid_argument` for a table of characters that is not known.
  explicit Catalogue(Options const& options = {});
  /// Takes what the other knows; that may only be destroyed or assigned to.
  Catalogue(Catalogue&&) noexcept;
  /// The same.
  Catalogue& operator=(Catalogue&&) noexcept;
  ~Catalogue();

  /// Takes a section of `size` bytes from `pid` (13 bits, -1 where unknown), and parses of it what it needs.
  /// Those of other tables, a PAT on another PID than 0, a CAT on another than 1, and a PMT on another than
  /// the PAT says are passed over. Descriptors that are broken are left out, which `problems` counts. Throws
  /// `error` for what the table's frame refuses, as a wrong CRC, with nothing changed.
  Changes add(int pid, unsigned char const* section, std::size_t size);
  Changes add(Pat const& pat);  ///< the programs, and where their PMTs are
  Changes add(Cat const& cat);  ///< CA systems and the PIDs of their management messages
  Changes add(Pmt const& pmt);  ///< a program
  Changes add(Nit const& nit);  ///< a network
  Changes add(Bat const& bat);  ///< a bouquet
  Changes add(Sdt const& sdt);  ///< services
  Changes add(Eit const& eit);  ///< events
  Changes add(Rst const& rst);  ///< which events run
  Changes add(Tdt const& tdt);  ///< the time
  Changes add(Tot const& tot);  ///< the time, and local times
  /// A table of whichever class. None, an AIT and sections of DSM-CC are passed over.
  Changes add(AnyTable const& table);

  std::map<NetworkKey, Network> const& networks() const;                       ///< by network_id
  std::map<NetworkStreamKey, TransportStream> const& network_streams() const;  ///< what networks consist of
  std::map<BouquetKey, Network> const& bouquets() const;                       ///< by bouquet_id
  std::map<BouquetStreamKey, TransportStream> const& bouquet_streams() const;  ///< what bouquets consist of
  std::map<ServiceKey, Service> const& services() const;           ///< those that an SDT describes
  std::map<ProgramKey, Program> const& programs() const;           ///< of the stream that is read
  std::map<EventKey, Event> const& events() const;                 ///< by service and event_id
  std::vector<ConditionalAccess> const& access() const;            ///< by the CAT
  std::optional<Time> time() const;                                ///< that a TDT or TOT told last
  std::vector<LocalTimeOffset> const& local_time_offsets() const;  ///< that a TOT told last

  /// Null where it is not known; likewise below.
  Service const* find(ServiceKey const& key) const;
  Event const* find(EventKey const& key) const;      ///< of the service, by event_id
  Program const* find(ProgramKey const& key) const;  ///< by program_number

  /// An entry of `events`.
  using EventEntry = std::map<EventKey, Event>::value_type;
  /// The events of a service by start, those without one last.
  std::vector<EventEntry const*> events_of(ServiceKey const& service) const;
  EventEntry const* present_event(ServiceKey const& service) const;    ///< by the present and following table
  EventEntry const* following_event(ServiceKey const& service) const;  ///< by the present and following table

  /// The service's place in the viewer's list: as the actual network says, or else the first that says
  /// something. One for receivers of high definition alone is told where there is no other.
  std::optional<ChannelNumber> channel_number(ServiceKey const& service) const;
  /// The authority of those content identifiers of the service that name none: as its SDT says, or else its
  /// stream in a network, or else the network, the actual one first; empty where none says it (ETSI TS 102
  /// 323, 6.3.3).
  std::string default_authority(ServiceKey const& service) const;
  /// The CA systems that the SDT or, where it is in the stream that is read, the service's program names: 16
  /// bits each, rising.
  std::vector<int> ca_systems(ServiceKey const& service) const;

  /// Takes away the events that end before `time`. They come back where a newer version of their table names
  /// them.
  Changes forget_events_before(Time time);
  /// Forgets all but the options.
  void clear();

  /// Bytes that are held, allocations counted as glibc makes them. Not counted is what the last question
  /// about a channel number or default authority leaves, 12 bytes for each channel number of its stream.
  std::size_t memory() const;
  std::size_t left_out() const;  ///< how often something was not taken for want of memory
  std::size_t problems() const;  ///< broken descriptors and loops that were passed over in sections

 private:
  struct SIVANE_LOCAL State;
  std::unique_ptr<State> state_;
};

}  // namespace sivane::catalogue
