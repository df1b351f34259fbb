// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/descriptors/descriptor.h>
#include <sivane/foundation/export.h>
#include <sivane/foundation/fields.h>
#include <sivane/foundation/parse_options.h>
#include <sivane/foundation/reader.h>

#include <cstddef>
#include <iosfwd>
#include <vector>

namespace sivane {

/// Where a table keeps what the `Parse` that runs knows. A copy of the table is not being parsed.
class RunningParse {
 public:
  RunningParse() = default;
  /// A copy is of no parse.
  RunningParse(RunningParse const&) noexcept {}
  /// Leaves it as it is.
  RunningParse& operator=(RunningParse const&) noexcept { return *this; }  // NOLINT(*-self-assignment)
  ~RunningParse() = default;

  ParseState* state = nullptr;  ///< null while no `Parse` runs
};

/// The frame of long-form sections: five header bytes after the length, and a CRC (ISO/IEC 13818-1, 2.4.4).
///
/// What a `Parse` builds is bounded: descriptors may overlap, but those that it files are not above 16 times
/// the bytes of the section; one more throws "descriptors overlap too much". (In broadcasts they are at most
/// the section's.)
///
/// `Parse` adds to what the object holds, and `reset` may leave descriptors: take a fresh object for each
/// section. A `Parse` that throws leaves `valid` as it was, and fields and containers as far as it got.
/// Nothing is kept of the caller's bytes.
class SIVANE_API PsiTableBase {
 public:
  /// Loads the table from its element; sets `valid`. Throws `error` where a part is missing, and checks
  /// nothing else.
  virtual void Parse(void* node);
  /// Checks and reads the section at `section`, which must hold the section_length + 3 bytes that it claims.
  /// Throws `error`: "crc error", `syntax_error` for the header bits, "invalid table id", and what the table
  /// adds.
  virtual void Parse(unsigned char const* section);
  /// Saves the table on its element, which `document` has made. False once the document refuses a field or an
  /// entry; what it refuses within descriptors and their records is left out and does not show.
  virtual bool SaveSection(void* document, void* element) const;
  /// The table's name by its id.
  virtual char const* get_table_id_text() const = 0;
  /// Empties what the table class holds.
  virtual void _reset() = 0;
  /// The lines that the class adds to a dump.
  virtual void _dump_state(std::ostream& os) const = 0;
  /// The part of `Parse(node)` that the class adds.
  virtual void _parse(void* node);
  /// Reads what follows the header; `body` is byte 8 of the section.
  virtual void _parse(unsigned char const* body) = 0;
  /// The part of `SaveSection` that the class adds.
  virtual bool _save_section(void* document, void* element) const;
  /// Whether `table_id`, which is set already, is one of the table's.
  virtual bool is_valid_tablesid() const = 0;
  /// Internal: names the members that the class adds, from which all its forms are made.
  virtual void _fields(FieldList& f);
  /// Whether the section_syntax_indicator is one that the table takes.
  virtual bool is_valid_syntax_indicator(int indicator) const;
  /// `bits` are the two reserved bits after the section_syntax_indicator and the bit that follows it.
  virtual bool is_valid_reserved_header(int bits) const;

  /// The same as `Parse(section)` for `available` bytes; "too little data" if the section does not fit in
  /// them.
  void Parse(unsigned char const* section, std::size_t available);
  /// The same, with a choice of what is built; unless the options say otherwise only what the frame refuses
  /// is thrown, and all else is listed in them.
  void Parse(unsigned char const* section, std::size_t available, ParseOptions& options);
  // Bytes of another type would be taken for a node.
  void Parse(char const* section) = delete;
  void Parse(signed char const* section) = delete;
  void Parse(std::byte const* section) = delete;
  /// `table_id`.
  int get_table_id() const { return table_id; }
  /// Empties the containers and clears `valid`; the numbers stay.
  void reset();
  /// The header, then the body. The stream stays hexadecimal, upper-case and filled with "0".
  void dump_state(std::ostream& os) const;

  /// Tells the visitor the header and every member.
  void visit(FieldVisitor& visitor) const;
  /// Internal: names the members of the header.
  void _head_fields(FieldList& f);

  int table_id = 0;                            ///< 8 bits
  int syntax_indicator = 0;                    ///< 1 bit
  int section_length = 0;                      ///< 12 bits: the bytes after this field
  int context_id = 0;                          ///< 16 bits: table_id_extension
  int version_number = 0;                      ///< 5 bits
  int section_number = 0;                      ///< 8 bits
  int last_section_number = 0;                 ///< 8 bits
  int current_next_indicator = 0;              ///< 1 bit
  bool valid = false;                          ///< a `Parse` has run to its end
  unsigned long crc32 = 0;                     ///< 32 bits, as stored in the section
  std::vector<DescriptorGeneral> descriptors;  ///< the host's: no operation of the library adds to it

 protected:
  using Frame = PsiTableBase;  ///< for SIVANE_TABLE

  PsiTableBase() = default;
  PsiTableBase(PsiTableBase const&) = default;
  PsiTableBase(PsiTableBase&&) = default;
  PsiTableBase& operator=(PsiTableBase const&) = default;
  PsiTableBase& operator=(PsiTableBase&&) = default;
  ~PsiTableBase() = default;

  /// A reader of a long-form body without its CRC; `overrun` is thrown by a read that would pass the section.
  Reader body_reader(unsigned char const* body, Failure overrun = too_little_data) const;

 private:
  void read_header(unsigned char const* section);

  RunningParse running_;
};

/// Declares what every table class has: the operations of its frame. `_parse` of a body throws what the
/// class's comment says; `_reset` empties the class's own vectors, where the comment says nothing else.
#define SIVANE_TABLE                                 \
  char const* get_table_id_text() const override;    \
  void _reset() override;                            \
  void _dump_state(std::ostream& os) const override; \
  using Frame::_parse;                               \
  void _parse(unsigned char const* body) override;   \
  void _fields(FieldList& f) override;               \
  bool is_valid_tablesid() const override;

/// What a table throws where a loop does not end at its length, or would leave the section.
inline constexpr Failure start_end_mismatch{error::no_errorcode, "descriptor start end mismatch"};

/// The frame of short-form sections: three header bytes and no CRC of its own (ETSI EN 300 468, 5.2.5
/// to 5.2.7).
class SIVANE_API PsiBase {
 public:
  /// Loads the table from its element; sets `valid`. Throws `error` where a part is missing, and checks
  /// nothing else.
  virtual void Parse(void* node);
  /// As `PsiTableBase::Parse`. Throws `error`: `syntax_error` for the header bits, "invalid table id", and
  /// what the table adds.
  virtual void Parse(unsigned char const* section);
  /// Saves the table on its element, which `document` has made. False once the document refuses a field or an
  /// entry; what it refuses within descriptors and their records is left out and does not show.
  virtual bool SaveSection(void* document, void* element) const;
  /// Whether the section_syntax_indicator is one that the table takes.
  virtual bool is_syntax_indicator_valid(int indicator) const;
  /// The table's name by its id.
  virtual char const* get_table_id_text() const = 0;
  /// Empties what the table class holds.
  virtual void _reset() = 0;
  /// "table_id: " and "section_length: " in the stream's base; a table calls this first.
  virtual void _dump_state(std::ostream& os) const;
  /// The part of `Parse(node)` that the class adds.
  virtual void _parse(void* node);
  /// Reads what follows the header; `body` is byte 3 of the section.
  virtual void _parse(unsigned char const* body) = 0;
  /// The part of `SaveSection` that the class adds.
  virtual bool _save_section(void* document, void* element) const;
  /// Whether `table_id`, which is set already, is one of the table's.
  virtual bool is_valid_tablesid() const = 0;
  /// Internal: names the members that the class adds, from which all its forms are made.
  virtual void _fields(FieldList& f);

  /// As `PsiTableBase::Parse` of as many bytes.
  void Parse(unsigned char const* section, std::size_t available);
  /// As `PsiTableBase::Parse` with options.
  void Parse(unsigned char const* section, std::size_t available, ParseOptions& options);
  // Bytes of another type would be taken for a node.
  void Parse(char const* section) = delete;
  void Parse(signed char const* section) = delete;
  void Parse(std::byte const* section) = delete;
  /// Prints its lines.
  void dump_state(std::ostream& os) const;

  /// Tells the visitor the header and every member.
  void visit(FieldVisitor& visitor) const;
  /// Internal: names the members of the header.
  void _head_fields(FieldList& f);

  int table_id = 0;        ///< 8 bits
  int section_length = 0;  ///< 12 bits: the bytes after this field
  bool valid = false;      ///< a `Parse` has run to its end

 protected:
  using Frame = PsiBase;  ///< for SIVANE_TABLE

  PsiBase() = default;
  PsiBase(PsiBase const&) = default;
  PsiBase(PsiBase&&) = default;
  PsiBase& operator=(PsiBase const&) = default;
  PsiBase& operator=(PsiBase&&) = default;
  ~PsiBase() = default;

  /// A reader of a short-form body; `overrun` is thrown by a read that would pass the section.
  Reader body_reader(unsigned char const* body, Failure overrun = too_little_data) const;

 private:
  RunningParse running_;
};

/// Whether two tables are of one class and equal in every member, the header included; `valid` and the host's
/// own vectors do not count.
SIVANE_API bool operator==(PsiTableBase const& one, PsiTableBase const& other);
SIVANE_API bool operator==(PsiBase const& one, PsiBase const& other);  ///< the same
/// The opposite.
inline bool operator!=(PsiTableBase const& one, PsiTableBase const& other) { return !(one == other); }
inline bool operator!=(PsiBase const& one, PsiBase const& other) { return !(one == other); }  ///< the same

}  // namespace sivane
