// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "check/subject_texts.h"

#include <algorithm>

#include "text/hexadecimal.h"

namespace inspect {

namespace {

std::string table_name(int table_id) {
  switch (table_id) {
    case 0x00:
      return "PAT";
    case 0x01:
      return "CAT";
    case 0x02:
      return "PMT";
    case 0x40:
      return "NIT actual";
    case 0x41:
      return "NIT other";
    case 0x42:
      return "SDT actual";
    case 0x46:
      return "SDT other";
    case 0x4A:
      return "BAT";
    case 0x4E:
      return "EIT p/f actual";
    case 0x4F:
      return "EIT p/f other";
    case 0x70:
      return "TDT";
    case 0x71:
      return "RST";
    case 0x73:
      return "TOT";
    case 0x74:
      return "AIT";
    default:
      break;
  }
  std::string const id = c_hexadecimal(table_id, 1);
  if (table_id >= 0x50 && table_id <= 0x5F) return "EIT schedule actual " + id;
  if (table_id >= 0x60 && table_id <= 0x6F) return "EIT schedule other " + id;
  return "table " + id;
}

std::string digits(std::int64_t number, std::size_t count) {
  std::string text = std::to_string(number);
  return std::string(count - std::min(count, text.size()), '0') + text;
}

}  // namespace

std::string pid_text(int pid) { return "PID " + c_hexadecimal(pid, 2); }

std::string table_text(int pid, SectionSight const& section, int number) {
  std::string text = table_name(section.table_id);
  if (section.is_long && section.table_id != 0x01) text += ' ' + std::to_string(section.extension);
  if (section.transport_stream != 0) text += " of stream " + std::to_string(section.transport_stream);
  if (number >= 0) text += " section " + std::to_string(number);
  return text + " on " + pid_text(pid);
}

std::string milliseconds_text(std::int64_t ticks) {
  return std::to_string((ticks + ticks_of_millisecond / 2) / ticks_of_millisecond) + " ms";
}

std::string time_text(std::int64_t ticks) {
  if (ticks < 0) return "-";
  std::int64_t const thousandths = ticks / ticks_of_millisecond, seconds = thousandths / 1000;
  return std::to_string(seconds / 3600) + ':' + digits(seconds / 60 % 60, 2) + ':' + digits(seconds % 60, 2) +
         '.' + digits(thousandths % 1000, 3);
}

}  // namespace inspect
