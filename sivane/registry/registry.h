// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>

namespace sivane {

// Names that the DVB project has registered for numbers of the service information (ETSI TR 101 162). Nothing
// in the library looks a name up; a host does so with a number that it has read from a table or descriptor.
//
// A name is ISO 8859-1 text that ends with a zero byte, as the published lists have it: it may end in a
// no-break space (byte 0xA0) or hold the six characters "&nbsp;". It belongs to the library and lives as long
// as that is loaded. A number that is not registered gives "<unknown>"; no bit of it is ignored. Where a list
// gives one number to several parties, the last of them is found. Any thread may call any of these functions
// at any time.

/// Opens the registries: until the first call every number is "<unknown>". Further calls change nothing.
SIVANE_API void init() noexcept;

/// network_id, 16 bits (ETSI EN 300 468, 5.2.1): the `context_id` of a network information table.
SIVANE_API char const* get_network_id(int id) noexcept;
/// CA_system_ID, 16 bits (ISO/IEC 13818-1, 2.6.16): `DescriptorCa::sys_id`.
SIVANE_API char const* get_ca_system_id(int id) noexcept;
/// MHP organisation_id, 32 bits (ETSI TS 101 812, 10.5).
SIVANE_API char const* get_mhp_id(int id) noexcept;
/// private_data_specifier, 32 bits (ETSI EN 300 468, 6.2): `DescriptorPrivateDataSpecifier`. From 0x80000000
/// on the number is the negative int of the same bits.
SIVANE_API char const* get_private_data_id(int id) noexcept;
/// data_broadcast_id, 16 bits (ETSI EN 300 468, 6.2): `DescriptorDataBroadcast`, `DescriptorDataBroadcastId`.
SIVANE_API char const* get_data_broadcast_id(int id) noexcept;
/// original_network_id, 16 bits (ETSI EN 300 468, 5.2).
SIVANE_API char const* get_original_network_id(int id) noexcept;
/// bouquet_id, 16 bits (ETSI EN 300 468, 5.2.2): the `context_id` of a bouquet association table.
SIVANE_API char const* get_bouquet_id(int id) noexcept;

}  // namespace sivane
