// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The whole library. Each part can be included by itself.
#pragma once

// What everything else uses: failures, text, time values, dumps, the bounded reader.
#include <sivane/foundation/application_identifier.h>
#include <sivane/foundation/dump.h>
#include <sivane/foundation/error.h>
#include <sivane/foundation/hex.h>
#include <sivane/foundation/length_prefixed_string.h>
#include <sivane/foundation/multilingual_name_info.h>
#include <sivane/foundation/parse_options.h>
#include <sivane/foundation/reader.h>
#include <sivane/foundation/section_size.h>
#include <sivane/foundation/text.h>
#include <sivane/foundation/time.h>

// From packets to sections: derive from one of the drivers.
#include <sivane/demux/demux.h>
#include <sivane/demux/packet_finder.h>

// Descriptors, filed by tag as the tables hold them; the two sets bring every descriptor class.
#include <sivane/descriptors/ait_descriptor_set.h>
#include <sivane/descriptors/descriptor_set.h>

// Descriptors that the sets keep as bytes, built on demand.
#include <sivane/descriptors/extended/extended.h>

// What an object holds, for a form of the host's own.
#include <sivane/fields/field_visitor.h>

// From sections to tables.
#include <sivane/tables/ait.h>
#include <sivane/tables/any_table.h>
#include <sivane/tables/bat.h>
#include <sivane/tables/cat.h>
#include <sivane/tables/dsm_cc.h>
#include <sivane/tables/eit.h>
#include <sivane/tables/nit.h>
#include <sivane/tables/pat.h>
#include <sivane/tables/pmt.h>
#include <sivane/tables/registrations.h>
#include <sivane/tables/rst.h>
#include <sivane/tables/sdt.h>
#include <sivane/tables/section.h>
#include <sivane/tables/seen_sections.h>
#include <sivane/tables/table_ids.h>
#include <sivane/tables/tdt.h>
#include <sivane/tables/tot.h>

// Tables into documents and back: what a document is asked for, and single attributes in the library's forms.
#include <sivane/xml/attributes.h>
#include <sivane/xml/dom.h>

// Names of coded values, and registered names of numbers, which `init` opens, for hosts that show them.
#include <sivane/registry/codes.h>
#include <sivane/registry/registry.h>
