// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: the lines of dumps. Hosts have functions named `dump` of their own.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace sivane {

class DateTime;
class Duration;
class TimeOffset;

/// What all dumps of the library are made of: one item a line, the label first and the value right after it.
/// Every line ends with a flush. Base, fill and case of numbers are the stream's and stay as they are.
namespace dump {

/// A number as `operator<<` writes it, at least `width` characters wide, in the stream's fill.
void line(std::ostream& os, char const* label, int value, int width = 0);
/// The same.
void line(std::ostream& os, char const* label, unsigned int value);
/// The same.
void line(std::ostream& os, char const* label, unsigned long value, int width = 0);
/// The same.
void line(std::ostream& os, char const* label, double value);
/// The byte itself, not its number.
void line(std::ostream& os, char const* label, unsigned char value);
/// Text up to its first zero byte, raw.
void line(std::ostream& os, char const* label, char const* value);
/// The same.
void line(std::ostream& os, char const* label, std::string const& value);

/// As `operator<<` of them: the stream becomes decimal.
void line(std::ostream& os, char const* label, DateTime const& value);
/// The same.
void line(std::ostream& os, char const* label, Duration const& value);
/// The same.
void line(std::ostream& os, char const* label, TimeOffset const& value);

/// A heading on a line of its own, then the bytes as `dump_block` writes them.
void block(std::ostream& os, char const* heading, std::vector<unsigned char> const& bytes);
/// The same, and nothing at all for no bytes.
void block_if_any(std::ostream& os, char const* heading, std::vector<unsigned char> const& bytes);

/// The `dump_state` of each element, in order.
template <class Elements>
void each(std::ostream& os, Elements const& elements) {
  for (auto const& element : elements) element.dump_state(os);
}

}  // namespace dump

}  // namespace sivane
