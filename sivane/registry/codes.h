// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>

namespace sivane {

// What coded values stand for by the current editions of the standards, in plain words. The texts of the
// classes themselves (`DescriptorService::get_service_type_text` and its like) are older and a part of stored
// dumps. A name is ASCII, ends with a zero byte and lives as long as the library is loaded; null where the
// value is reserved or a user's own.

/// stream_type, 8 bits (ISO/IEC 13818-1:2023, table 2-34).
SIVANE_API char const* stream_type_name(int stream_type) noexcept;
/// service_type, 8 bits (ETSI EN 300 468 V1.17.1, table 89).
SIVANE_API char const* service_type_name(int service_type) noexcept;
/// A genre by content_nibble_level_1 and content_nibble_level_2, 4 bits each (ETSI EN 300 468 V1.17.1, table
/// 29). With a second nibble that is reserved it is the name of the whole group.
SIVANE_API char const* genre_name(int content_nibble_level_1, int content_nibble_level_2) noexcept;
/// How a component is coded: stream_content and stream_content_ext, 4 bits each, and component_type, 8 bits
/// (ETSI EN 300 468 V1.17.1, table 26). The extension is looked at from stream_content 9 on.
SIVANE_API char const* component_coding_name(int stream_content, int stream_content_ext,
                                             int component_type) noexcept;

}  // namespace sivane
