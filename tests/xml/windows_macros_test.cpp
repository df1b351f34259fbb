// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The headers behind macros of the names and values that those of Windows define. Standard headers, which
// come first, do not all bear `min` and `max`.
#include <gtest/gtest.h>

#include <bitset>

#define S_OK (static_cast<long>(0L))
#define S_FALSE (static_cast<long>(1L))
#define E_FAIL (static_cast<long>(-2147467259L))
#define interface struct
#define min(a, b) ((a) < (b) ? (a) : (b))
#define max(a, b) ((a) > (b) ? (a) : (b))
#define small char
#define near
#define far
#include <sivane/sivane.h>

static_assert(S_OK == 0 && S_FALSE == 1 && E_FAIL == -0x7FFF'BFFBL);

TEST(Headers, StandBesideTheMacrosOfWindows) { EXPECT_EQ(sivane::tagVARIANT(7).text(), u"7"); }
