// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/descriptors/ait_descriptor_set.h>
#include <sivane/foundation/application_identifier.h>
#include <sivane/foundation/export.h>
#include <sivane/foundation/reader.h>
#include <sivane/tables/section.h>

#include <iosfwd>
#include <vector>

namespace sivane {

/// Application information table: the applications of one type (ETSI TS 101 812, 10.4). Accepts every table
/// id. Its dump prints every descriptor.
///
/// Throws `length_error` "application common descriptors length mismatch" where the common descriptors or
/// those of an application do not end at their length, "application length to small" where fewer than 9 bytes
/// are left for an application, "application length mismatch" where the applications do not end at their
/// length; and "too little data" where a length field is not in the section. `reset` empties the
/// applications and the general descriptors and leaves the other common descriptors.
class SIVANE_API Ait final : public PsiTableBase, public AitDescriptorSet {
 public:
  /// One application.
  class SIVANE_API Application : public AitDescriptorSet {
   public:
    Application() = default;
    /// `available` is the bytes left in the loop, and nothing behind them is read; `consumed` those taken.
    /// Throws "application length to small" where fewer than 9 are left.
    Application(unsigned char const* data, int available, int& consumed);
    /// From where the reader is, and steps over it.
    explicit Application(Reader& reader);
    /// From its element of a document. Throws `error` where a part is missing.
    explicit Application(void* node);
    /// Saves it on its element. False once the document refuses.
    bool _save_stream_info(void* document, void* element) const;
    SIVANE_FIELDS(Application)
    /// Prints its lines.
    void dump_state(std::ostream& os) const;

    int application_control_code = 0;             ///< 8 bits
    int application_descriptors_loop_length = 0;  ///< 12 bits, bytes
    ApplicationIdentifier application_identifer;  ///< spelt as in stored documents
  };

  SIVANE_TABLE
  int get_application_type() const { return context_id; }  ///< 16 bits, with no flag taken out
  /// The text of the application type, which is the `context_id` without its first bit.
  char const* get_application_type_text() const;

  int common_descriptors_length = 0;           ///< 12 bits, bytes
  int application_loop_length = 0;             ///< 12 bits, bytes
  std::vector<Application> application_infos;  ///< in section order
};

}  // namespace sivane
