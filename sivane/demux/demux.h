// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/demux/counters.h>
#include <sivane/demux/packet.h>
#include <sivane/foundation/export.h>
#include <sivane/foundation/section_size.h>

#include <cstddef>
#include <cstdint>
#include <exception>
#include <iosfwd>
#include <map>
#include <memory>
#include <set>
#include <utility>

namespace sivane {

/// How the payloads of a PID become sections.
enum class Reassembly {
  /// The first section that starts in each packet. Error, scrambling and continuity bits are not looked at: a
  /// lost packet shows up as a wrong CRC in the section that it was part of.
  first_start,
  /// All sections, as ISO/IEC 13818-1, 2.4.4 has them: any number in a packet, up to stuffing bytes 0xFF.
  /// Packets with transport_error_indicator and scrambled payloads are not read, a repeated packet counts
  /// once, and a gap in the continuity_counter drops the section that it cuts. Table ids that nobody has
  /// asked for are stepped over.
  every_section,
};

/// The routing core: takes packets from a driver, shows each of them to the host's hooks, and reassembles the
/// sections of the PIDs that the host has registered.
///
/// Derive from a driver (`DemuxPush`, `DemuxIstream`, `Demux2`, or this class itself), override the hooks
/// that you want, register with `add_psi_handler`, and run the driver. Everything runs on the caller's
/// thread; an object belongs to one thread at a time. An exception that a hook throws leaves through the
/// driver untouched.
///
/// An object takes 64 KiB and each handler of it 8 KiB, used or not. Objects share nothing: one for each
/// stream, on as many threads.
///
/// Which sections are assembled is what `set_reassembly` chooses: the default takes one of each packet,
/// `Reassembly::every_section` is for receivers.
///
/// A hook may register and remove handlers, the one that is delivering to it included: it gets no further
/// calls. What a hook registers takes part from the next packet on; with `Reassembly::first_start` a table,
/// or a filter that a table's hook registers, already where the same packet goes on.
class SIVANE_API Demux {
 public:
  class PidHandler;
  class PSIHandler;
  class PSIFilterHandler;

  /// The four header bytes of a packet, unpacked (ISO/IEC 13818-1, 2.4.3.2).
  class SIVANE_API TSHeader {
   public:
    /// Throws `error` "TS syncbyte expected" if the first byte is not 0x47.
    explicit TSHeader(unsigned char const* packet);
    /// One line. The stream is hexadecimal from the PID on and stays so.
    void dump_state(std::ostream& os) const;

    int transport_error_indicator;     ///< 1 bit
    int payload_unit_start_indicator;  ///< 1 bit
    int transport_priority;            ///< 1 bit
    int pid;                           ///< 13 bits
    int transport_scrambling_control;  ///< 2 bits
    int adaptation_field_control;      ///< 2 bits
    int continuity_counter;            ///< 4 bits
  };

  /// Marks that a packet has an adaptation field. The field's contents are not decoded.
  class SIVANE_API AdaptionFieldHeader {
   public:
    /// `length` is 1 to 256: the adaptation_field_length byte and the bytes that it counts, as the byte
    /// claims.
    AdaptionFieldHeader(unsigned char const* field, int& length);
  };

  /// What takes the payloads of one PID.
  class SIVANE_API BaseHandler {
   public:
    /// `owner` gets the sections.
    explicit BaseHandler(Demux& owner) : demux(owner) {}
    /// Takes a payload; `start` where a section starts in it.
    virtual void parse(TSHeader const& header, bool start, unsigned char const* data, int size) = 0;
    /// Prints its lines.
    virtual void dump_state(std::ostream& os) const;

    Demux& demux;  ///< whose hooks are called

   protected:
    ~BaseHandler() = default;
  };

  /// Bytes as they arrive become a section (ISO/IEC 13818-1, 2.4.4).
  struct SIVANE_API SectionBuffer {
    static constexpr int capacity = 8192;  ///< bytes

    /// Takes a payload. True if the section is complete now; `close` follows its delivery.
    bool take(bool start, unsigned char const* data, int size);
    /// Makes room for the next section.
    void close();
    /// The whole size that the header claims, 3 to 4098.
    int need() const { return sivane::section_size(section); }

    unsigned char section[capacity] = {};  ///< from its table id on
    int section_size = 0;                  ///< bytes held
    bool in_section = false;               ///< a section has started and is not yet delivered
    std::uint64_t began_at = 0;            ///< `packet_offset` of the packet in which it has started
  };

  Demux();
  Demux(Demux const&) = delete;
  Demux& operator=(Demux const&) = delete;

  /// Reads packets with `read_buf` until it gives no whole packet or `stop` was called. The result is
  /// `exit_code`, 1 unless `stop` gave another, or 2 where a packet does not begin with 0x47.
  int start();
  /// Drops every PID with all of its handlers; `stopped` and `exit_code` stay.
  void reset();

  /// Asks for the sections of `table_id` on `pid`. Asking twice is asking once.
  void add_psi_handler(int pid, int table_id);
  /// Asks for the sections on `pid` whose first `size` bytes, ANDed with `mask`, equal `value`; `size` 0
  /// matches all. They arrive through the three-argument hook under `id`. `mask` and `value` are not copied:
  /// keep them alive. Every call adds a filter.
  void add_psi_handler(int pid, unsigned char const* value, unsigned char const* mask, int size,
                       unsigned long id);
  /// Drops the handler of `table_id` on `pid`, if there is one. If `pid` has none left then, its filters go
  /// too: on a PID of filters alone any `table_id` drops them all. No other call drops a filter but `reset`.
  void remove_psi_handler(int pid, int table_id);
  /// Prints its lines.
  void dump_state(std::ostream& os) const;

  /// Chooses how sections are assembled from the next packet on; those in progress are dropped. With
  /// `Reassembly::every_section`:
  /// - A hook that throws loses its own section and nothing else: the first exception leaves when the packet
  ///   is dealt with, that of `push_data` and `push_packets` when the buffer is.
  /// - The section that a table id hook gets may lie in the packet itself and has its own bytes alone; its
  ///   `section_number` is 0 where it has less than 7.
  /// - Handlers keep no bytes in their own buffers; each PID takes 5 KiB more, the object 64 KiB.
  void set_reassembly(Reassembly mode);
  /// As `set_reassembly` left it.
  Reassembly reassembly() const { return reassembly_; }

  /// Counts what arrives on `pid` from now on, whether it has handlers or not. Works in both modes.
  void count(int pid);
  /// Counts every PID that a packet can have. Takes 3 MiB.
  void count_all();
  /// What was counted on `pid`, null if nobody has asked for it; it stays where it is as long as this object
  /// does. With `Reassembly::every_section` the PIDs that have handlers are counted unasked.
  PidCounters const* counters(int pid) const;
  /// For hosts that check the CRC, so that it is among the counters of `pid`.
  void report_crc_failure(int pid);
  /// Is told of the gaps on all PIDs that are counted; null for nobody. It must outlive this object.
  void set_gap_listener(GapListener* listener) { gap_listener_ = listener; }

  /// Where the packet that is looked at, or was looked at last, is in the input: bytes from the start of
  /// the first packet. What `push_packets` takes is where its runs say.
  std::uint64_t packet_offset() const { return packet_offset_; }
  /// For section hooks: the same for the packet in which the section began.
  std::uint64_t section_offset() const { return section_offset_; }

  std::map<int, PidHandler*> pid_handlers;  ///< by PID; owned, changed by the operations above only
  bool stopped = false;                     ///< set by `stop`, cleared by nothing
  int exit_code = 1;                        ///< result of `start`

 protected:
  ~Demux();

  /// For hooks: ends `start` at its next packet, with `code` as its result.
  void stop(int code);

  /// Fills `buffer` and sets `got`. False when no further read makes sense.
  virtual bool read_buf(unsigned char* buffer, int size, int& got) = 0;
  /// The end of a pass of `Demux2`.
  virtual void idle();
  /// Each packet of a pull driver, before its sync byte is looked at.
  virtual void on_raw_ts_packet(unsigned char const* packet);
  /// Each packet that begins with 0x47; `after_header` is its byte 4.
  virtual void on_ts_packet(TSHeader const& header, unsigned char const* after_header);
  /// `after_field` is at most the packet's end, whatever the field's length byte claims.
  virtual void on_adaption_field_header_(AdaptionFieldHeader const& field, unsigned char const* after_field);
  /// A section that a filter let through; `section` holds `size` bytes and is valid during the call only.
  virtual void on_psi_section(unsigned long id, int size, unsigned char* section);
  /// A whole section; `section` is valid during the call only, `section_number` is its byte 6.
  virtual void on_psi_section(int pid, int table_id, int section_number, unsigned char const* section);

 private:
  friend class DemuxPush;
  friend class Demux2;
  class SIVANE_LOCAL Delivery;
  class SIVANE_LOCAL FilterPass;
  class SIVANE_LOCAL Receptions;
  static constexpr int pid_count = 0x2000;

  void begin_packet() {
    packet_offset_ = next_offset_;
    next_offset_ += ts_packet_size;
  }
  /// Shows a packet that begins with 0x47 to the hooks and gives it to the handler of its PID.
  void route_packet(unsigned char const* packet);
  /// The same where somebody counts or wants every section. The handler is that of `pid`, and with it the
  /// counters.
  void route_watched(int pid, unsigned char const* packet);
  /// Calls a hook. With `Reassembly::every_section` its exception waits until what is under way is dealt
  /// with.
  template <class Hook>
  void guard(Hook hook) {
    if (reassembly_ == Reassembly::first_start) return hook();
    try {
      hook();
    } catch (...) {
      if (!failure_) failure_ = std::current_exception();
    }
  }
  void pass_failure() {
    if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
  }
  /// Shows the packet to the hooks. What is left of it after header and adaptation field is its payload.
  struct Payload {
    unsigned char const* data;
    int size;  ///< 0 to 184
  };
  static Payload payload_of(TSHeader const& header, unsigned char const* packet);
  Payload show_packet(TSHeader const& header, unsigned char const* packet);

  class SIVANE_LOCAL PidEntry;
  /// A handler that the host has erased from the map by itself is not followed.
  PidHandler* find_handler(int pid) const {
    bool const is_in_table = 0 <= pid && pid < pid_count;
    PidHandler* const handler = is_in_table ? handlers_[static_cast<std::size_t>(pid)] : nullptr;
    if (is_in_table && (handler == nullptr || pid_handlers.size() == registered_)) return handler;
    auto const entry = pid_handlers.find(pid);
    return entry != pid_handlers.end() ? entry->second : nullptr;
  }
  void drop_pid(std::map<int, PidHandler*>::iterator entry);

  std::unique_ptr<PidHandler*[]> handlers_;  // of the PIDs that a packet can have, found at once
  std::size_t registered_ = 0;               // PIDs in pid_handlers, unless the host took some away by itself
  std::unique_ptr<Receptions> receptions_;   // of the PIDs that are counted; null until there is one
  Reassembly reassembly_ = Reassembly::first_start;
  GapListener* gap_listener_ = nullptr;
  std::exception_ptr failure_;  // the first one of the packet or buffer under way
  alignas(64) std::uint64_t packet_offset_ =
      0;  // written for each packet: no two objects share its cache line
  std::uint64_t next_offset_ = 0;
  std::uint64_t section_offset_ = 0;
  int deliveries_ = 0;        // calls of PidHandler::parse under way
  int filter_passes_ = 0;     // loops over filters under way
  std::uint64_t parsed_ = 0;  // calls of PidHandler::parse so far
  // Handlers that a hook removed live on until no delivery is under way, each linked to the next: where
  // memory has run out they can still be put aside.
  PSIHandler* retired_handlers_ = nullptr;
  PidHandler* retired_pids_ = nullptr;
};

/// Assembles the sections of one table id on one PID.
class SIVANE_API Demux::PSIHandler final : public BaseHandler, public SectionBuffer {
 public:
  /// For the sections of table id `id`.
  PSIHandler(Demux& owner, int id);
  /// Takes a payload, and delivers the section that it completes.
  void parse(TSHeader const& header, bool start, unsigned char const* data, int size) override;
  /// Prints its lines.
  void dump_state(std::ostream& os) const override;
  /// Drops the partial section; its continuation packets are ignored until the next start.
  void invalidate();

  int table_id;  ///< 8 bits

 private:
  friend class Demux;
  friend class PidHandler;
  std::uint64_t added_in_;  // the call of PidHandler::parse under way or the last one before
  bool removed_ = false;
  PSIHandler* next_retired_ = nullptr;
};

/// Assembles every section on one PID and delivers those that its byte filter lets through.
class SIVANE_API Demux::PSIFilterHandler final : public BaseHandler, public SectionBuffer {
 public:
  /// For the sections that the filter lets through; nothing is copied.
  PSIFilterHandler(Demux& owner, unsigned char const* filter_value, unsigned char const* filter_mask,
                   int filter_size, unsigned long filter_id);
  /// Takes a payload, and delivers the section that it completes.
  void parse(TSHeader const& header, bool start, unsigned char const* data, int size) override;
  /// Compares the section from its table id on, the length bytes included, and what the last packet brought
  /// after it. Bytes that were not brought match only where neither `mask` nor `value` has a bit.
  bool filter_match() const;

  unsigned char const* mask;   ///< the host's storage
  unsigned char const* value;  ///< the host's storage
  int size;                    ///< bytes in `mask` and in `value`
  unsigned long id;            ///< the host's number, given back in the hook

 private:
  friend class PidHandler;
  bool matches(unsigned char const* bytes, int count) const;
  std::uint64_t added_in_;  // as in PSIHandler
  bool by_a_filter_;        // the hook of a filter added it
};

/// The handlers of one PID.
class SIVANE_API Demux::PidHandler {
 public:
  /// Without handlers.
  explicit PidHandler(Demux& owner);
  PidHandler(PidHandler const&) = delete;
  PidHandler& operator=(PidHandler const&) = delete;
  ~PidHandler();

  /// Takes the payload of one packet. Nothing outside its `size` bytes is read; a payload without a byte, and
  /// one whose pointer_field leads out of it, is ignored.
  void parse(TSHeader& header, unsigned char const* data, int size);
  /// As `Demux::add_psi_handler`.
  void AddPsiHandler(int table_id);
  /// As `Demux::add_psi_handler` of a filter.
  void AddPsiHandler(unsigned char const* value, unsigned char const* mask, int size, unsigned long id);
  /// As `Demux::remove_psi_handler`, but that the PID stays.
  void RemovePsiHandler(int table_id);
  /// Drops the partial sections of the table id handlers; filters keep theirs. With
  /// `Reassembly::every_section` it drops the section in progress.
  void invalidate();
  /// Prints its lines.
  void dump_state(std::ostream& os) const;

  std::map<int, PSIHandler*> psi_handlers;      ///< by table id; owned
  std::set<PSIFilterHandler*> filter_handlers;  ///< owned; delivery goes in the order of the pointers
  Demux& demux;                                 ///< whose hooks are called
  PSIHandler* current = nullptr;                ///< takes the continuation packets

 private:
  friend class Demux;
  class SIVANE_LOCAL Assembly;
  void assemble_every_section(PidCounters& counters);
  void cut_section();
  void drop_sections();
  void start_section(TSHeader const& header, unsigned char const* data, int size);
  void continue_section(TSHeader const& header, unsigned char const* data, int size);
  void give_to_filters(TSHeader const& header, bool start, unsigned char const* data, int size);

  std::unique_ptr<Assembly> assembly_;  // of the mode every_section
  bool removed_ = false;
  PidHandler* next_retired_ = nullptr;
};

/// The push driver: the host hands over buffers of whole packets.
class SIVANE_API DemuxPush : public Demux {
 public:
  /// 0: all packets were processed. -1: `size` is no whole number of packets, nothing was. 2: a packet does
  /// not begin with 0x47; those before it were processed. A section may span two calls.
  int push_data(unsigned char const* data, int size);
  /// The same for packets of any stride, as `PacketFinder` hands them on; the result is 0 or 2.
  int push_packets(PacketRun const& run);

 protected:
  bool read_buf(unsigned char* buffer, int size, int& got) override;
};

/// The pull driver on a standard input stream, which must outlive the object.
class SIVANE_API DemuxIstream : public Demux {
 public:
  /// Reads from `source`, whose position is the first packet.
  explicit DemuxIstream(std::istream& source) : stream_(source) {}

 protected:
  bool read_buf(unsigned char* buffer, int size, int& got) override;

 private:
  std::istream& stream_;
};

/// The polling driver: one source for each handled PID, read a packet at a time in turn.
///
/// Register first, then call `start`: it reads the PIDs that are registered when it begins. A pass asks
/// `end_of_input` once and then, in ascending order of the PIDs, calls `read_buf` once for each; `idle` ends
/// the pass. A source without a packet at hand answers false and is asked again in the next pass; to wait for
/// one is the business of `idle`.
class SIVANE_API Demux2 : public Demux {
 public:
  /// Runs until `end_of_input`, whatever `stopped` says, and gives `exit_code`. A packet goes to the handler
  /// of the PID that it was read for. Lost sync drops every section in progress and the run goes on. PIDs
  /// that a hook registers meanwhile are read from the next call on.
  int start();

 protected:
  ~Demux2() = default;
  using Demux::read_buf;

  /// True ends the run.
  virtual bool end_of_input() = 0;
  /// Gives a packet of the PID; false where there is none at hand.
  virtual bool read_buf(int pid, unsigned char* buffer, int size, int& got) = 0;

 private:
  void poll(int pid, unsigned char* packet, int& length);
  void invalidate();
};

}  // namespace sivane
