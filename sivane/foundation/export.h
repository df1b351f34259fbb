// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

/// SIVANE_API marks what the shared library offers to a host; everything else stays hidden in it.
/// SIVANE_LOCAL hides a part of something that is offered. On Windows, where nothing is marked, the linker of
/// MinGW offers everything.
#if defined(__GNUC__) && !defined(_WIN32)
#define SIVANE_API __attribute__((visibility("default")))
#define SIVANE_LOCAL __attribute__((visibility("hidden")))
#else
#define SIVANE_API
#define SIVANE_LOCAL
#endif
