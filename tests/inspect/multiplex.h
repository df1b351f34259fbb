// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "packet_writer.h"

namespace sivane::testing {

/// Makes a transport stream of a packet each millisecond, as a multiplexer does: each of its items comes at
/// its period, a packet at a time, and null packets fill what is left. Without a fault nothing in it violates
/// ETSI TR 101 290.
class Multiplex {
 public:
  struct Item {
    int pid;
    int period, phase;                  ///< milliseconds
    std::function<Bytes(int)> payload;  ///< at a time in milliseconds, pointer_field included
    bool has_pcr = false;               ///< the packet is an adaptation field with a PCR, without payload
  };

  Multiplex();

  /// One item of the section, or in place of the one of this name.
  void repeat(std::string const& name, int pid, int period, int phase, Bytes const& section);
  void repeat(std::string const& name, Item item) { items_[name] = std::move(item); }
  void remove(std::string const& name) { items_.erase(name); }
  /// Leaves an item out from one time up to another.
  void pause(std::string const& name, int from, int to) { pauses_[name] = {from, to}; }
  /// Another section of the item from a time on.
  void change(std::string const& name, int from, Bytes const& section);
  /// A further section in the first free packet from a time on.
  void add(int time, int pid, Bytes const& section);
  /// Changes the first packet of the PID from a time on, once it is made.
  void edit(int time, int pid, std::function<void(Bytes&)> change);
  /// Bytes that are no packet.
  void insert(int time, Bytes const& bytes) { inserted_[time] = bytes; }
  /// PCRs go on from another value, with or without an announcement.
  void jump(int time, long long milliseconds, bool is_announced);

  /// The bytes of so many milliseconds.
  Bytes make(int milliseconds) const;

  static constexpr int map_pid = 0x100, video_pid = 0x101, audio_pid = 0x102, second_audio_pid = 0x103,
                       ecm_pid = 0x104, emm_pid = 0x105;

 private:
  struct Edit {
    int time, pid;
    std::function<void(Bytes&)> change;
  };
  struct Jump {
    int time = -1;
    long long milliseconds = 0;
    bool is_announced = false;
  };

  class Writer;
  bool is_due(std::string const& name, Item const& item, int time) const;

  std::map<std::string, Item> items_;
  std::map<std::string, std::pair<int, int>> pauses_;
  std::vector<Edit> edits_;
  std::map<int, Bytes> inserted_;
  Jump jump_;
  int added_ = 0;
};

}  // namespace sivane::testing
