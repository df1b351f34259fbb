// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>

#include <string>
#include <vector>

namespace sivane {

// Hexadecimal text of byte and integer arrays: two digits a byte, eight an entry. Nothing here clears its
// target.

/// Appends lower-case digits for the `size` bytes at `data`.
SIVANE_API void bin2str(unsigned char const* data, std::string& text, int size);
SIVANE_API void bin2str(std::vector<unsigned char> const& data, std::string& text);
SIVANE_API void bin2str(std::vector<int> const& data, std::string& text);
/// The low 32 bits of each entry.
SIVANE_API void bin2str(std::vector<unsigned long> const& data, std::string& text);

/// Writes the bytes that `text` spells, at most `size`. Here and below, digits may be of either case, and a
/// text that is empty or no whole number of groups has no effect; a group stops counting at its first other
/// character.
SIVANE_API void str2bin(std::string const& text, unsigned char* data, int size);
SIVANE_API void str2bin(std::string const& text, std::vector<unsigned char>& data);
SIVANE_API void str2bin(std::string const& text, std::vector<int>& data);
SIVANE_API void str2bin(std::string const& text, std::vector<unsigned long>& data);

}  // namespace sivane
