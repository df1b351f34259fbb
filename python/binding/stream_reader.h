// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/demux/demux.h>
#include <sivane/demux/packet_finder.h>
#include <sivane/tables/registrations.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "packet_numbers.h"

namespace sivane::python {

/// Which sections of a stream are wanted.
struct Selection {
  std::optional<std::vector<Registration>>
      registrations;          ///< none: the usual ones, and those that tables name
  bool every_section = true;  ///< or the first that starts in each packet
};

/// A section as it came, borrowed during the call.
struct SectionView {
  int pid;
  unsigned char const* bytes;
  std::size_t size;
  std::uint64_t offset;  ///< in the stream, of the packet in which it began
  std::int64_t packet;   ///< the number of that packet, from 0 on; -1 where too long ago
};

class SectionSink {
 public:
  virtual void take(SectionView const& section) = 0;

 protected:
  ~SectionSink() = default;
};

/// Takes a stream in pieces of any size and gives its sections to a sink. Needs no interpreter.
class StreamReader final : public PacketFinder {
 public:
  /// The sink must outlive it.
  StreamReader(Selection const& selection, SectionSink& sink);

  /// Ends the stream. Throws `error` where no packet was found in it.
  void finish();

 private:
  class Host final : public DemuxPush {
   public:
    Host(Selection const& selection, SectionSink& sink);
    PacketNumbers numbers;

   private:
    using DemuxPush::on_psi_section;
    void on_psi_section(int pid, int table_id, int number, unsigned char const* section) override;
    void add(std::vector<Registration> const& registrations);

    SectionSink& sink_;
    bool follows_tables_;
  };

  void on_packets(PacketRun const& run) override;

  Host host_;
};

}  // namespace sivane::python
