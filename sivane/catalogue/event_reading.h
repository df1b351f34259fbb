// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: from an entry of an EIT to an event.
#pragma once

#include <sivane/catalogue/event.h>
#include <sivane/charset/charset.h>
#include <sivane/tables/eit.h>

namespace sivane::catalogue {

Event event_of(Eit::EventInfo const& info, charset::Converter& text);

/// Gives an event the texts that it leaves out and an earlier table has, which calls it by the same title: a
/// schedule tells more than a present and following table, or the other way round.
void keep_texts(Event const& known, Event& event);

}  // namespace sivane::catalogue
