// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/descriptor_set.h>
#include <sivane/descriptors/descriptor_storage.h>
#include <sivane/foundation/parse_state.h>

#define SIVANE_SET DescriptorSet
#define SIVANE_SET_PARSE ParseDescriptor
// NOLINTNEXTLINE(bugprone-macro-parentheses)
#define SIVANE_SET_ROWS <sivane/descriptors/descriptor_rows.inc>
#include <sivane/descriptors/set_rows.inc>
