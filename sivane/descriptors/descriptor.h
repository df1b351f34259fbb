// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>
#include <sivane/foundation/fields.h>
#include <sivane/foundation/reader.h>

#include <iosfwd>
#include <vector>

namespace sivane {

/// What all descriptors share: a tag, a length and the operations below. Descriptors are plain values, held
/// by value and never deleted through this class.
class SIVANE_API DescriptorBase {
 public:
  /// The tag line, then the class's own lines. The stream stays hexadecimal and filled with "0".
  virtual void dump_state(std::ostream& os) const;
  /// The descriptor's name; a literal of the dumps, odd spellings included.
  virtual char const* get_tag_text() const = 0;
  /// The part of `SaveSection` that the class adds.
  virtual bool _save_section(void* document, void* element) const;
  /// The lines that the class adds to a dump.
  virtual void _dump_state(std::ostream& os) const = 0;
  /// Empties the variable part where the class has one that can be; fixed members, `tag` and `length` stay.
  virtual void _reset() = 0;
  /// The part of `Parse` that the class adds.
  virtual void _parse(void* node);
  /// Internal: names the members that the class adds, from which all its forms are made.
  virtual void _fields(FieldList& f);
  /// Internal: names the members that every descriptor has.
  void _head_fields(FieldList& f);

  /// Loads tag, length and what the class carries from the descriptor's element. Throws `error` where a part
  /// is missing.
  void Parse(void* node);
  /// Saves them on the descriptor's element, which `document` has made. False once it refuses.
  bool SaveSection(void* document, void* element) const;
  /// Tells the visitor tag, length and every member.
  void visit(FieldVisitor& visitor) const;

  DescriptorBase& operator=(DescriptorBase const&) = default;
  DescriptorBase& operator=(DescriptorBase&&) = default;

  int tag = 0;     ///< descriptor_tag, 8 bits
  int length = 0;  ///< descriptor_length, 8 bits: the bytes of the body

 protected:
  DescriptorBase() = default;
  /// Takes tag and length alone.
  explicit DescriptorBase(DescriptorBytes descriptor) : tag(descriptor.tag()), length(descriptor.length()) {}
  DescriptorBase(DescriptorBase const&) = default;
  DescriptorBase(DescriptorBase&&) = default;
  ~DescriptorBase() = default;
};

/// Declares what every descriptor class `Class` has. The wire constructor takes a bare pointer to the tag
/// byte as well, takes any tag, and throws `error` as the class's comment says; where the comment names no
/// failure, "too little data" is the only one. Each class says next to this what it prints and what `_reset`
/// empties.
#define SIVANE_DESCRIPTOR(Class)                                                                          \
  Class() = default;                                                                                      \
  /** From the bytes of one, whatever its tag. Throws `error` as the class says, or "too little data". */ \
  explicit Class(DescriptorBytes descriptor);                                                             \
  char const* get_tag_text() const override;                                                              \
  void _fields(FieldList& f) override;

/// Whether two descriptors are of one class and equal in every member, tag and length included.
SIVANE_API bool operator==(DescriptorBase const& one, DescriptorBase const& other);
/// The opposite.
inline bool operator!=(DescriptorBase const& one, DescriptorBase const& other) { return !(one == other); }

/// Declares what every record of a descriptor has.
#define SIVANE_RECORD(Class)                                                                  \
  Class() = default;                                                                          \
  /** From where the reader is, and steps over it. Throws `error` as the descriptor says. */  \
  explicit Class(Reader& reader);                                                             \
  /** Loads it from its element. Throws `error` where an attribute or child is missing. */    \
  void Parse(void* node);                                                                     \
  /** Saves it on its element, which `document` has made. False once the document refuses. */ \
  bool SaveSection(void* document, void* element) const;                                      \
  SIVANE_FIELDS(Class)

/// The first two bytes of any descriptor, as an overlay.
struct descriptor_base {
  unsigned char tag;     ///< descriptor_tag
  unsigned char length;  ///< bytes that follow
};
/// The same bytes without the overlay.
inline unsigned char const* bytes_of(descriptor_base const* descriptor) {
  return reinterpret_cast<unsigned char const*>(descriptor);
}

/// A descriptor of which the library knows tag, length and bytes.
class SIVANE_API DescriptorGeneral final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorGeneral)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { data.clear(); }
  /// From the bytes that the overlay lies on.
  explicit DescriptorGeneral(descriptor_base const* descriptor);
  /// For a host that builds one by hand; with a length below 1 `data` stays empty.
  DescriptorGeneral(int descriptor_tag, unsigned char const* bytes, int descriptor_length);

  std::vector<unsigned char> data;  ///< the body
  /// 32 bits: whose private tags were in force in the loop where the descriptor was found; 0 for nobody's, or
  /// where none was. No field of the descriptor: neither dumps nor documents have it, and it does not count
  /// where descriptors are compared.
  unsigned int private_data_specifier = 0;
};

}  // namespace sivane
