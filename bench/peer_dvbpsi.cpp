// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sys/types.h>

#include <cstdint>
#include <vector>

#include "peer.h"
#include "streams.h"

// In the order of their dependence, which clang-format must leave: the headers do not include each other.
// clang-format off
extern "C" {
#include <dvbpsi/dvbpsi.h>
#include <dvbpsi/psi.h>
#include <dvbpsi/descriptor.h>
#include <dvbpsi/demux.h>
#include <dvbpsi/pat.h>
#include <dvbpsi/pmt.h>
#include <dvbpsi/nit.h>
#include <dvbpsi/sdt.h>
#include <dvbpsi/eit.h>
#include <dvbpsi/dr.h>
}
// clang-format on

namespace sivane::bench {

namespace {

template <class Read>
std::uint64_t sum(int count, Read read) {
  std::uint64_t total = 0;
  for (int i = 0; i < count; ++i) total += static_cast<std::uint64_t>(read(i));
  return total;
}

/// `read` of what a descriptor became; 0 where it was refused.
template <class Dr, class Read>
std::uint64_t number(Dr* decoded, Read read) {
  return decoded == nullptr ? 0 : static_cast<std::uint64_t>(read(*decoded));
}

std::uint64_t number_of_guide(dvbpsi_descriptor_t* d) {
  switch (d->i_tag) {
    case 0x4D:
      return number(dvbpsi_DecodeShortEventDr(d),
                    [](auto& dr) { return dr.i_event_name_length + dr.i_text_length; });
    case 0x4E:
      return number(dvbpsi_DecodeExtendedEventDr(d), [](auto& dr) { return dr.i_text_length; });
    case 0x54:
      return number(dvbpsi_DecodeContentDr(d), [](auto& dr) {
        return sum(dr.i_contents_number, [&dr](int i) { return dr.p_content[i].i_type; });
      });
    default:
      return 0;
  }
}

std::uint64_t number_of_program(dvbpsi_descriptor_t* d) {
  switch (d->i_tag) {
    case 0x09:
      return number(dvbpsi_DecodeCADr(d), [](auto& dr) { return dr.i_ca_pid; });
    case 0x0A:
      return number(dvbpsi_DecodeISO639Dr(d), [](auto& dr) {
        return sum(dr.i_code_count, [&dr](int i) { return dr.code[i].i_audio_type; });
      });
    case 0x0E:
      return number(dvbpsi_DecodeMaxBitrateDr(d), [](auto& dr) { return dr.i_max_bitrate; });
    case 0x52:
      return number(dvbpsi_DecodeStreamIdentifierDr(d), [](auto& dr) { return dr.i_component_tag; });
    case 0x56:
      return number(dvbpsi_DecodeTeletextDr(d), [](auto& dr) {
        return sum(dr.i_pages_number, [&dr](int i) { return dr.p_pages[i].i_teletext_page_number; });
      });
    case 0x59:
      return number(dvbpsi_DecodeSubtitlingDr(d), [](auto& dr) {
        return sum(dr.i_subtitles_number, [&dr](int i) { return dr.p_subtitle[i].i_composition_page_id; });
      });
    default:
      return 0;
  }
}

std::uint64_t number_of_network(dvbpsi_descriptor_t* d) {
  switch (d->i_tag) {
    case 0x40:
      return number(dvbpsi_DecodeNetworkNameDr(d), [](auto& dr) { return dr.i_name_length; });
    case 0x41:
      return number(dvbpsi_DecodeServiceListDr(d), [](auto& dr) {
        return sum(dr.i_service_count, [&dr](int i) { return dr.i_service[i].i_service_id; });
      });
    case 0x43:
      return number(dvbpsi_DecodeSatDelivSysDr(d), [](auto& dr) { return dr.i_fec_inner; });
    case 0x4A:
      return number(dvbpsi_DecodeLinkageDr(d), [](auto& dr) { return dr.i_service_id; });
    default:
      return 0;
  }
}

std::uint64_t number_of_service(dvbpsi_descriptor_t* d) {
  switch (d->i_tag) {
    case 0x48:
      return number(dvbpsi_DecodeServiceDr(d),
                    [](auto& dr) { return dr.i_service_provider_name_length + dr.i_service_name_length; });
    case 0x49:
      return number(dvbpsi_DecodeCountryAvailability(d), [](auto& dr) { return dr.i_code_count; });
    case 0x53:
      return number(dvbpsi_DecodeCAIdentifierDr(d),
                    [](auto& dr) { return dr.i_number; });  // its ids are wrong
    default:
      return 0;
  }
}

std::uint64_t number_of_event(dvbpsi_descriptor_t* d) {
  switch (d->i_tag) {
    case 0x50:
      return number(dvbpsi_DecodeComponentDr(d), [](auto& dr) { return dr.i_component_type; });
    case 0x55:
      return number(dvbpsi_DecodeParentalRatingDr(d), [](auto& dr) {
        return sum(dr.i_ratings_number, [&dr](int i) { return dr.p_parental_rating[i].i_rating; });
      });
    default:
      return number_of_guide(d);
  }
}

class Host {
 public:
  explicit Host(Kinds wanted) : kinds_(wanted) {
    attach_pat();
    for (int service = 1; service <= services; ++service) attach_pmt(service);
    for (int const pid : {nit_pid, sdt_pid, eit_pid}) attach_subtables(pid);
  }
  Host(Host const&) = delete;
  Host& operator=(Host const&) = delete;
  ~Host() {
    dvbpsi_pat_detach(by_pid_[pat_pid]);
    for (int i = 0; i < services; ++i) dvbpsi_pmt_detach(by_pid_[index(first_pmt_pid + i)]);
    for (int const pid : {nit_pid, sdt_pid, eit_pid}) dvbpsi_DetachDemux(by_pid_[index(pid)]);
    for (dvbpsi_t* const handle : by_pid_) {
      if (handle != nullptr) dvbpsi_delete(handle);
    }
  }

  Decoded run(testing::Bytes const& stream) {
    for (std::size_t at = 0; at < stream.size(); at += 188) {
      std::size_t const pid = (stream[at + 1] & 0x1Fu) << 8 | stream[at + 2];
      // It takes a pointer to bytes that it might change, and does not.
      if (by_pid_[pid] != nullptr) dvbpsi_packet_push(by_pid_[pid], const_cast<uint8_t*>(&stream[at]));
    }
    return decoded_;
  }

 private:
  static std::size_t index(int pid) { return static_cast<std::size_t>(pid); }
  static Host& of(void* host) { return *static_cast<Host*>(host); }

  dvbpsi_t* handle_for(int pid) { return by_pid_[index(pid)] = dvbpsi_new(nullptr, DVBPSI_MSG_NONE); }
  void attach_pat() { dvbpsi_pat_attach(handle_for(pat_pid), on_pat, this); }
  void attach_pmt(int service) {
    dvbpsi_pmt_attach(handle_for(first_pmt_pid + service - 1), static_cast<uint16_t>(service), on_pmt, this);
  }
  void attach_subtables(int pid) { dvbpsi_AttachDemux(handle_for(pid), on_new_subtable, this); }

  static void on_new_subtable(dvbpsi_t* handle, uint8_t table_id, uint16_t extension, void* host) {
    if (table_id == 0x40) dvbpsi_nit_attach(handle, table_id, extension, on_nit, host);
    if (table_id == 0x42) dvbpsi_sdt_attach(handle, table_id, extension, on_sdt, host);
    if (table_id >= 0x4E) dvbpsi_eit_attach(handle, table_id, extension, on_eit, host);
  }

  static void on_pat(void* host, dvbpsi_pat_t* pat) {
    for (auto* program = pat->p_first_program; program != nullptr; program = program->p_next) {
      ++of(host).decoded_.entries;
    }
    dvbpsi_pat_delete(pat);
  }
  static void on_pmt(void* host, dvbpsi_pmt_t* pmt) {
    of(host).take(pmt->p_first_descriptor, number_of_program);
    for (auto* es = pmt->p_first_es; es != nullptr; es = es->p_next) {
      of(host).entry(es->p_first_descriptor, number_of_program);
    }
    dvbpsi_pmt_delete(pmt);
  }
  static void on_nit(void* host, dvbpsi_nit_t* nit) {
    of(host).take(nit->p_first_descriptor, number_of_network);
    for (auto* ts = nit->p_first_ts; ts != nullptr; ts = ts->p_next) {
      of(host).entry(ts->p_first_descriptor, number_of_network);
    }
    dvbpsi_nit_delete(nit);
  }
  static void on_sdt(void* host, dvbpsi_sdt_t* sdt) {
    for (auto* service = sdt->p_first_service; service != nullptr; service = service->p_next) {
      of(host).entry(service->p_first_descriptor, number_of_service);
    }
    dvbpsi_sdt_delete(sdt);
  }
  static void on_eit(void* host, dvbpsi_eit_t* eit) {
    for (auto* event = eit->p_first_event; event != nullptr; event = event->p_next) {
      of(host).entry(event->p_first_descriptor, number_of_event);
    }
    dvbpsi_eit_delete(eit);
  }

  void entry(dvbpsi_descriptor_t* descriptors, std::uint64_t (*number)(dvbpsi_descriptor_t*)) {
    ++decoded_.entries;
    take(descriptors, number);
  }
  void take(dvbpsi_descriptor_t* first, std::uint64_t (*number)(dvbpsi_descriptor_t*)) {
    auto* const read = kinds_ == Kinds::all ? number : number_of_guide;
    for (auto* descriptor = first; descriptor != nullptr; descriptor = descriptor->p_next) {
      decoded_.sum += read(descriptor);
      decoded_.descriptors += descriptor->p_decoded != nullptr ? 1u : 0u;
    }
  }

  Kinds kinds_;
  Decoded decoded_;
  std::vector<dvbpsi_t*> by_pid_ = std::vector<dvbpsi_t*>(0x2000);
};

}  // namespace

Decoded decode_with_dvbpsi(testing::Bytes const& stream, Kinds kinds) { return Host(kinds).run(stream); }

}  // namespace sivane::bench
