// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The whole library. Each part can be included by itself.
#pragma once

// What everything else uses: failures, text, time values, dumps, the bounded reader.
#include <sivane/foundation/dump.h>
#include <sivane/foundation/error.h>
#include <sivane/foundation/hex.h>
#include <sivane/foundation/multilingual_name.h>
#include <sivane/foundation/reader.h>
#include <sivane/foundation/text.h>
#include <sivane/foundation/time.h>

// From packets to sections: derive from one of the drivers.
#include <sivane/demux/demux.h>

// Descriptors, filed by tag as the tables hold them; brings every descriptor class.
#include <sivane/descriptors/descriptor_set.h>

// From sections to tables.
#include <sivane/tables/pat.h>
#include <sivane/tables/section.h>

// Documents: what a DOM has to offer, and values as attributes.
#include <sivane/xml/attributes.h>
#include <sivane/xml/dom.h>
