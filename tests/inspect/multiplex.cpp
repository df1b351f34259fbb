// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "multiplex.h"

#include <deque>

#include "plain_bytes.h"
#include "section_text.h"

namespace sivane::testing {

namespace {

constexpr int null_pid = 0x1FFF;

Bytes with_pointer(Bytes const& section) { return Bytes{0} + section; }

/// The start of a PES packet with a PTS (ISO/IEC 13818-1, 2.4.3.6).
Bytes pes_start(int stream_id) {
  return Bytes{0, 0, 1, low_byte(stream_id)} + hex("0000 80 80 05 21 0001 0001");
}

Multiplex::Item of_section(int pid, int period, int phase, Bytes const& section) {
  return {pid, period, phase, [=](int) { return with_pointer(section); }};
}

Multiplex::Item of_bytes(int pid, int period, int phase, Bytes const& bytes) {
  return {pid, period, phase, [=](int) { return bytes; }};
}

void put_pcr(Bytes& packet, long long pcr, bool is_announced) {
  long long const base = pcr / 300, extension = pcr % 300;
  long long const bits = base << 15 | 0x7E00 | extension;
  packet[3] = low_byte((packet[3] & 0x0F) | 0x20);
  packet[4] = 183;
  packet[5] = is_announced ? 0x90 : 0x10;
  for (std::size_t i = 0; i < 6; ++i) packet[6 + i] = static_cast<unsigned char>(bits >> 8 * (5 - i));
}

}  // namespace

Multiplex::Multiplex() {
  auto const table = [this](char const* name, int pid, int period, int phase, char const* text) {
    repeat(name, pid, period, phase, assemble(text));
  };
  table("pat", 0, 100, 0, "00 B( 0001 C1 00 00 0001 E100 crc )");
  table("cat", 1, 500, 3, "01 B( FFFF C1 00 00 09[ 0500 E105 ] crc )");
  table("pmt", map_pid, 100, 5,
        "02 B( 0001 C1 00 00 E101 F( 09[ 0500 E104 ] ) 02 E101 F( ) 03 E102 F( ) 03 E103 F( ) crc )");
  table("nit", 0x10, 1000, 7, "40 F( 0001 C1 00 00 F( ) F( ) crc )");
  table("nit other", 0x10, 1000, 107, "41 F( 0002 C1 00 00 F( ) F( ) crc )");
  table("sdt", 0x11, 500, 9, "42 F( 0001 C1 00 00 0001 FF 0001 FD 8( 48[ 01 01 41 01 42 ] ) crc )");
  table("sdt other", 0x11, 1000, 209, "46 F( 0002 CB 00 00 0001 FF 0001 FC 8( 48[ 01 01 41 01 43 ] ) crc )");
  table("bat", 0x11, 1000, 309, "4A F( 0001 C1 00 00 F( ) F( ) crc )");
  table("present", 0x12, 1000, 11, "4E F( 0001 C1 00 01 0001 0001 01 4E crc )");
  table("following", 0x12, 1000, 511, "4E F( 0001 C1 01 01 0001 0001 01 4E crc )");
  table("other present", 0x12, 1000, 111, "4F F( 0001 C1 00 01 0002 0001 01 4F crc )");
  table("other following", 0x12, 1000, 611, "4F F( 0001 C1 01 01 0002 0001 01 4F crc )");
  table("schedule 0", 0x12, 1000, 211, "50 F( 0001 C1 00 08 0001 0001 00 50 crc )");
  table("schedule 1", 0x12, 1000, 711, "50 F( 0001 C1 08 08 0001 0001 08 50 crc )");
  table("rst", 0x13, 1000, 13, "71 7( )");
  table("tdt", 0x14, 1000, 15, "70 7( EA60 180000 )");
  table("tot", 0x14, 1000, 515, "73 7( EA60 180000 F( ) crc )");
  items_["pcr"] = {video_pid, 40, 17, [](int) { return Bytes(); }, true};
  items_["video"] = of_bytes(video_pid, 200, 18, pes_start(0xE0));
  items_["audio"] = of_bytes(audio_pid, 200, 20, pes_start(0xC0));
  items_["second audio"] = of_bytes(second_audio_pid, 200, 22, Bytes());
  items_["ecm"] = of_bytes(ecm_pid, 200, 24, with_pointer(assemble("80 7( 01 )")));
  items_["emm"] = of_bytes(emm_pid, 200, 26, with_pointer(assemble("82 7( 01 )")));
}

void Multiplex::repeat(std::string const& name, int pid, int period, int phase, Bytes const& section) {
  items_[name] = of_section(pid, period, phase, section);
}

void Multiplex::change(std::string const& name, int from, Bytes const& section) {
  auto const before = items_[name].payload;
  items_[name].payload = [=](int time) { return time < from ? before(time) : with_pointer(section); };
}

void Multiplex::add(int time, int pid, Bytes const& section) {
  constexpr int never_again = 1'000'000;
  repeat("added " + std::to_string(added_++), pid, never_again, time, section);
}

void Multiplex::edit(int time, int pid, std::function<void(Bytes&)> change) {
  edits_.push_back({time, pid, std::move(change)});
}

void Multiplex::jump(int time, long long milliseconds, bool is_announced) {
  jump_ = {time, milliseconds, is_announced};
}

bool Multiplex::is_due(std::string const& name, Item const& item, int time) const {
  auto const pause = pauses_.find(name);
  bool const is_paused = pause != pauses_.end() && time >= pause->second.first && time < pause->second.second;
  return !is_paused && time % item.period == item.phase % item.period && time >= item.phase % item.period &&
         (item.phase < item.period || time >= item.phase);
}

/// Makes the packet of each millisecond.
class Multiplex::Writer {
 public:
  explicit Writer(Multiplex const& multiplex) : multiplex_(multiplex), edits_(multiplex.edits_) {}

  Bytes write(int time) {
    for (auto const& [name, item] : multiplex_.items_) {
      if (multiplex_.is_due(name, item, time)) waiting_.push_back(&item);
    }
    Bytes packet;
    if (waiting_.empty()) {
      packet = make_packet({.pid = null_pid});
    } else {
      packet = packet_of(*waiting_.front(), time);
      waiting_.pop_front();
    }
    apply_edit(packet, time);
    return packet;
  }

 private:
  Bytes packet_of(Item const& item, int time) {
    if (item.has_pcr) return pcr_packet(item.pid, time);
    int& counter = counters_[item.pid];
    return make_packet(
        {.pid = item.pid, .start = true, .continuity = counter++ & 0xF, .payload = item.payload(time)});
  }

  Bytes pcr_packet(int pid, int time) {
    constexpr long long of_millisecond = 27'000;
    Jump const& jump = multiplex_.jump_;
    bool const has_jumped = jump.time >= 0 && time >= jump.time;
    Bytes packet = make_packet({.pid = pid, .continuity = (counters_[pid] + 15) & 0xF});
    put_pcr(packet, (time + (has_jumped ? jump.milliseconds : 0)) * of_millisecond,
            has_jumped && !was_jump_ && jump.is_announced);
    was_jump_ = has_jumped;
    return packet;
  }

  void apply_edit(Bytes& packet, int time) {
    int const pid = (packet[1] & 0x1F) << 8 | packet[2];
    for (auto edit = edits_.begin(); edit != edits_.end(); ++edit) {
      if (time < edit->time || pid != edit->pid) continue;
      edit->change(packet);
      edits_.erase(edit);
      return;
    }
  }

  Multiplex const& multiplex_;
  std::vector<Edit> edits_;
  std::deque<Item const*> waiting_;
  std::map<int, int> counters_;
  bool was_jump_ = false;
};

Bytes Multiplex::make(int milliseconds) const {
  Writer writer(*this);
  Bytes stream;
  for (int time = 0; time < milliseconds; ++time) {
    auto const inserted = inserted_.find(time);
    if (inserted != inserted_.end())
      stream.insert(stream.end(), inserted->second.begin(), inserted->second.end());
    Bytes const packet = writer.write(time);
    stream.insert(stream.end(), packet.begin(), packet.end());
  }
  return stream;
}

}  // namespace sivane::testing
