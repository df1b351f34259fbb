// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The assembly state of one handler, driven directly with pieces of any size.
#include <gtest/gtest.h>

#include "recording_host.h"

namespace sivane::testing {
namespace {

constexpr int pid = 0x100;
constexpr int table_id = 0x42;
const Bytes whole = patterned_section(table_id, 20);

enum State { idle, assembling, invalidated };
constexpr bool start = true;
constexpr bool continuation = false;

struct Row {
  State state;
  bool kind;
  Bytes bytes;
  bool is_delivered;
  bool in_section;
  int section_size;
};

/// In the state `assembling` a handler holds the first five bytes of `whole`.
const std::vector<Row> rows = {
    {idle, start, part(whole, 0, 10), false, true, 10},
    {idle, start, whole, true, false, 0},
    {idle, start, whole + Bytes(100, 0xFF), true, false, 0},
    {idle, start, part(whole, 0, 1), false, true, 1},
    {idle, start, part(whole, 0, 2), false, true, 2},
    {idle, start, {}, false, true, 0},
    {idle, continuation, whole, false, false, 0},
    {assembling, start, part(whole, 0, 10), false, true, 10},
    {assembling, start, whole, true, false, 0},
    {assembling, start, {}, false, true, 0},
    {assembling, continuation, part(whole, 5, 19), false, true, 19},
    {assembling, continuation, part(whole, 5, 20), true, false, 0},
    {assembling, continuation, part(whole, 5, 20) + Bytes(164, 0xFF), true, false, 0},
    {invalidated, start, part(whole, 0, 10), false, true, 10},
    {invalidated, start, whole, true, false, 0},
    {invalidated, continuation, whole, false, true, 0},
};

template <class Handler>
void bring_into(State state, Handler& handler, Demux::TSHeader const& header) {
  if (state == idle) return;
  handler.parse(header, true, whole.data(), 5);
  if (state == invalidated) handler.section_size = 0;
}

template <class Handler>
void check_row(Row const& row, Handler& handler) {
  const Demux::TSHeader header(make_packet({.pid = pid}).data());
  bring_into(row.state, handler, header);
  const HeapBlock data(row.bytes);
  handler.parse(header, row.kind, data.data(), data.size());
  EXPECT_EQ(handler.in_section, row.in_section);
  EXPECT_EQ(handler.section_size, row.section_size);
}

TEST(Assembly, EveryStateWithEveryKindOfPacket) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    SCOPED_TRACE("row " + std::to_string(i));
    PushHost host;
    Demux::PSIHandler handler(host, table_id);
    check_row(rows[i], handler);
    EXPECT_EQ(host.sections, rows[i].is_delivered ? Sections{whole} : Sections());

    Demux::PSIFilterHandler filter(host, nullptr, nullptr, 0, 7);
    check_row(rows[i], filter);
    EXPECT_EQ(host.filtered.size(), rows[i].is_delivered ? 1u : 0u);
    if (rows[i].is_delivered) {
      EXPECT_EQ(host.filtered.back(), (PushHost::Filtered{7, whole}));
    }
  }
}

TEST(Assembly, DeliversOnceWhateverThePieces) {
  const Demux::TSHeader header(make_packet({.pid = pid}).data());
  for (std::size_t size = 1; size < whole.size(); ++size) {
    PushHost host;
    Demux::PSIHandler handler(host, table_id);
    for (std::size_t done = 0; done < whole.size(); done += size) {
      EXPECT_TRUE(host.sections.empty());
      const HeapBlock piece(
          part(whole, static_cast<int>(done), static_cast<int>(std::min(done + size, whole.size()))));
      handler.parse(header, done == 0, piece.data(), piece.size());
    }
    EXPECT_EQ(host.sections, Sections{whole}) << size;
  }
}

TEST(Assembly, InvalidateDropsTheTableHandlersBytesOnly) {
  PushHost host;
  host.add_psi_handler(pid, table_id);
  host.add_psi_handler(pid, nullptr, nullptr, 0, 7);
  const Bytes section = patterned_section(table_id, 300);
  host.push(exact_packet(pid, true, Bytes{0} + part(section, 0, 183)));
  Demux::PidHandler& handler = *host.pid_handlers.at(pid);
  handler.invalidate();
  EXPECT_TRUE(host.handler(pid, table_id).in_section);
  EXPECT_EQ(host.handler(pid, table_id).section_size, 0);
  EXPECT_EQ(handler.current, &host.handler(pid, table_id));
  host.push(exact_packet(pid, false, part(section, 183, 300)));
  EXPECT_TRUE(host.sections.empty());
  EXPECT_EQ(host.filtered.size(), 1u);
}

}  // namespace
}  // namespace sivane::testing
