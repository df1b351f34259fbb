// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

/// Marks what the shared library offers to a host; everything else stays hidden in it.
#if defined(__GNUC__)
#define SIVANE_API __attribute__((visibility("default")))
#else
#define SIVANE_API
#endif
