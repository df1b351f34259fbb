# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""Bytes from the notation of the case files, which tests/support/section_text.h tells, and sections of them."""

import re

_TOKENS = re.compile(r"#[^\n]*|\"([^\"]*)\"|([0-9A-F])?([(\[])([+-]\d+)?|([)\]])|crc|\^|([0-9A-F]{2})|\s+")


def crc32(data):
    """CRC_32 of ISO/IEC 13818-1, Annex A."""
    register = 0xFFFFFFFF
    for byte in data:
        register ^= byte << 24
        for _ in range(8):
            register = register << 1 & 0xFFFFFFFF ^ (0x04C11DB7 if register & 0x80000000 else 0)
    return register


def assemble(text):
    data, open_counts, sum_at = bytearray(), [], None
    for token in _TOKENS.finditer(text):
        characters, digit, opened, added, closed, pair = token.groups()
        if characters is not None:
            data += characters.encode("latin-1")
        elif opened:
            size = 2 if digit else 1
            open_counts.append((len(data), size, int(digit or "0", 16), int(added or 0)))
            data += bytes(size)
        elif closed:
            start, size, top, more = open_counts.pop()
            count = len(data) - start - size + more
            data[start : start + size] = (top << 12 | count).to_bytes(2, "big") if size == 2 else bytes([count])
        elif pair:
            data.append(int(pair, 16))
        elif token.group() == "crc":
            sum_at = len(data)
            data += bytes(4)
    if sum_at is not None:
        data[sum_at : sum_at + 4] = crc32(data[:sum_at]).to_bytes(4, "big")
    return bytes(data)


def steps(path):
    """What the case file parses, each with the lines that belong to it."""
    found, last = [], ""
    for line in path.read_text().splitlines():
        key, value = line[:7].strip(), line[7:]
        if key == "hex" and last == "hex":
            found[-1]["hex"] += value
        elif key == "hex":
            found.append({"hex": value})
        elif found and line and line[0] != "#":
            found[-1].setdefault(key, value)
        last = key
    return found
