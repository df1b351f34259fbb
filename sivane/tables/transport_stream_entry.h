// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/descriptors/descriptor_set.h>
#include <sivane/foundation/export.h>
#include <sivane/foundation/reader.h>

namespace sivane {

/// A transport stream of a network or bouquet (ETSI EN 300 468, 5.2.1 and 5.2.2). A last descriptor that runs
/// over the entry is not noticed.
class SIVANE_API TransportStreamEntry : public DescriptorSet {
 public:
  TransportStreamEntry() = default;
  /// `size` is the bytes available on the way in, and nothing behind them is read; on the way out those
  /// consumed, 6 and the length of the descriptors. Throws "too little data" where fewer than 6 are available
  /// (so for a size of 0 or below), "descriptor start end mismatch" where the descriptors leave what is
  /// available.
  TransportStreamEntry(unsigned char const* data, int& size);
  /// From where the reader is; `available` bytes are left in the loop.
  TransportStreamEntry(Reader& reader, int available);
  /// From its element of a document. Throws `error` where a part is missing.
  explicit TransportStreamEntry(void* node);
  /// Saves it on its element. False once the document refuses.
  bool _save_stream_info(void* document, void* element) const;
  SIVANE_FIELDS(TransportStreamEntry)

  int stream_id = 0;   ///< transport_stream_id, 16 bits
  int network_id = 0;  ///< original_network_id, 16 bits
};

}  // namespace sivane
