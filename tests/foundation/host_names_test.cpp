// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What a host may write, and what must not compile.
#include <gtest/gtest.h>
#include <sivane/sivane.h>

#include <cstddef>
#include <type_traits>

namespace {

using namespace sivane;

// The names that hosts have themselves must not be taken by the namespace.
int dump(int value) { return value; }
int crc(int value) { return value; }
int xml(int value) { return value; }
TEST(HostNames, AreFree) { EXPECT_EQ(dump(1) + crc(2) + xml(3), 6); }

template <class Table, class Byte>
concept ParsesBytes = requires(Table table, Byte* bytes) {
  table.Parse(bytes);
};
template <class Table>
constexpr bool refuses_other_bytes =
    !ParsesBytes<Table, char> && !ParsesBytes<Table, char const> && !ParsesBytes<Table, signed char> &&
    !ParsesBytes<Table, std::byte> && !ParsesBytes<Table, std::byte const> &&
    ParsesBytes<Table, unsigned char> && ParsesBytes<Table, unsigned char const> && ParsesBytes<Table, void>;
static_assert(refuses_other_bytes<Pat> && refuses_other_bytes<Tdt>);

static_assert(std::is_copy_assignable_v<DescriptorBase> && std::is_move_assignable_v<DescriptorBase>);

}  // namespace
