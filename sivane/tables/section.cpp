// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/dump_lines.h>
#include <sivane/foundation/error.h>
#include <sivane/foundation/parse_state.h>
#include <sivane/foundation/section_size.h>
#include <sivane/foundation/trace_log.h>
#include <sivane/tables/crc.h>
#include <sivane/tables/section.h>

#include <algorithm>
#include <cstdint>
#include <iomanip>
#include <ostream>

namespace sivane {

namespace {

constexpr int short_header_size = 3;
constexpr int long_header_size = 8;
constexpr int crc_size = 4;

int syntax_bit(unsigned char const* section) { return section[1] >> 7; }

int length_field(unsigned char const* section) { return section_size(section) - short_header_size; }

void require_whole(unsigned char const* section, std::size_t available) {
  if (available < short_header_size || available < static_cast<std::size_t>(section_size(section))) {
    raise(too_little_data, static_cast<int>(available));
  }
}

/// All header bits are in byte 1; `named` is the byte whose address the failure names, by its low 32 bits.
error header_error(unsigned char const* named) {
  error failure(error::syntax_error, static_cast<unsigned int>(reinterpret_cast<std::uintptr_t>(named)));
  failure.offset = 1;
  return failure;
}

[[noreturn]] void syntax_failure(unsigned char const* named) { throw header_error(named); }

[[noreturn]] void id_failure() { raise({error::no_errorcode, "invalid table id"}, 0); }

void check_crc(unsigned char const* section) {
  int const size = section_size(section);
  std::uint32_t const crc = crc_register(section, static_cast<std::size_t>(size));
  if (crc == 0) return;
  log_write(1, "crc error, got %#x expected 0xffffffff", ~crc);
  raise({error::no_errorcode, "crc error"}, std::max(size - crc_size, 0));
}

/// Of a section's `size` bytes the body begins behind `header`; the last `trailer` are no part of it.
struct Body {
  int size, header, trailer;

  Reader reader(unsigned char const* first, Failure overrun, ParseState* state) const {
    if (size < header) raise(too_little_data, size);
    return {first, size - header - trailer, size - header, overrun, header, state};
  }
};

/// Tells a table of a state until the end of the scope.
class Run {
 public:
  Run(RunningParse& running, ParseState& state) : running_(running), outer_(running.state) {
    running.state = &state;
  }
  Run(Run const&) = delete;
  Run& operator=(Run const&) = delete;
  ~Run() { running_.state = outer_; }

 private:
  RunningParse& running_;
  ParseState* outer_;
};

/// Reads a body in the state that there is, or in one of its own.
template <class ParseBody>
void run_body(RunningParse& running, unsigned char const* section, ParseBody parse_body) {
  if (running.state != nullptr) return static_cast<void>(running.state->attempt(-1, parse_body));
  ParseState strict(section_size(section), nullptr);
  Run const run(running, strict);
  parse_body();
}

/// Calls the table's own `Parse(section)`, which finds the options.
template <class Table>
void parse_with(Table& table, RunningParse& running, unsigned char const* section, ParseOptions& options) {
  ParseState state(section_size(section), &options);
  Run const run(running, state);
  table.Parse(section);
}

}  // namespace

void PsiTableBase::Parse(unsigned char const* section) {
  syntax_indicator = syntax_bit(section);
  section_length = length_field(section);
  check_crc(section);
  if (syntax_bit(section) == 0) syntax_failure(section);
  if (!is_valid_syntax_indicator(syntax_bit(section))) syntax_failure(section + 1);
  if (!is_valid_reserved_header(section[1] >> 4 & 3)) syntax_failure(section + 1);
  table_id = section[0];
  if (!is_valid_tablesid()) id_failure();
  read_header(section);
  run_body(running_, section, [&] { _parse(section + long_header_size); });
  valid = true;
}

void PsiTableBase::Parse(unsigned char const* section, std::size_t available) {
  require_whole(section, available);
  Parse(section);
}

void PsiTableBase::Parse(unsigned char const* section, std::size_t available, ParseOptions& options) {
  require_whole(section, available);
  parse_with(*this, running_, section, options);
}

void PsiTableBase::read_header(unsigned char const* section) {
  int const size = section_size(section);
  if (size < long_header_size) raise(too_little_data, size);
  Reader reader = Reader::within(section, size);
  reader.skip_bits(short_header_size * 8);
  context_id = reader.u16();
  reader.skip_bits(2);
  version_number = reader.bits(5);
  current_next_indicator = reader.bits(1);
  section_number = reader.u8();
  last_section_number = reader.u8();
  crc32 = Reader::within(section + size - crc_size, crc_size).u32();
}

Reader PsiTableBase::body_reader(unsigned char const* body, Failure overrun) const {
  Body const extent{section_length + short_header_size, long_header_size, crc_size};
  return extent.reader(body, overrun, running_.state);
}

void PsiTableBase::reset() {
  descriptors.clear();
  valid = false;
  _reset();
}

void PsiTableBase::dump_state(std::ostream& os) const {
  os << std::hex << std::right << std::unitbuf << std::uppercase << std::setfill('0');
  dump::line(os, "table_id ", table_id, 2);
  dump::line(os, "section_length ", section_length, 4);
  dump::line(os, "context_id ", context_id, 4);
  dump::line(os, "version_number ", version_number, 2);
  dump::line(os, "section_number ", section_number, 2);
  dump::line(os, "last_section_number ", last_section_number);
  dump::line(os, "current_next_indicator ", current_next_indicator, 2);
  dump::line(os, "crc32 ", crc32, 8);
  dump::each(os, descriptors);
  _dump_state(os);
}

bool PsiTableBase::is_valid_syntax_indicator(int) const { return true; }

bool PsiTableBase::is_valid_reserved_header(int) const { return true; }

void PsiBase::Parse(unsigned char const* section) {
  constexpr int length_must_be_zero = 0x0C;
  if (!is_syntax_indicator_valid(syntax_bit(section))) syntax_failure(section);
  if ((section[1] & length_must_be_zero) != 0) syntax_failure(section + 1);
  table_id = section[0];
  if (!is_valid_tablesid()) id_failure();
  section_length = length_field(section);
  run_body(running_, section, [&] { _parse(section + short_header_size); });
  valid = true;
}

void PsiBase::Parse(unsigned char const* section, std::size_t available) {
  require_whole(section, available);
  Parse(section);
}

void PsiBase::Parse(unsigned char const* section, std::size_t available, ParseOptions& options) {
  require_whole(section, available);
  parse_with(*this, running_, section, options);
}

Reader PsiBase::body_reader(unsigned char const* body, Failure overrun) const {
  Body const extent{section_length + short_header_size, short_header_size, 0};
  return extent.reader(body, overrun, running_.state);
}

bool PsiBase::is_syntax_indicator_valid(int) const { return true; }

void PsiBase::_dump_state(std::ostream& os) const {
  dump::line(os, "table_id: ", table_id);
  dump::line(os, "section_length: ", section_length);
}

void PsiBase::dump_state(std::ostream& os) const { _dump_state(os); }

}  // namespace sivane
