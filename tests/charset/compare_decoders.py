#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""Compares the names that `sivane-inspect events` prints with what Python's codecs make of the same bytes: every
character of every table, then those of recordings.

    compare_decoders.py TOOL [RECORDING...]
"""
import collections
import subprocess
import sys
import unicodedata

LATIN = {n: f"iso8859_{n}" for n in (*range(1, 12), 13, 14, 15)}
CODECS = {b"\x11": "utf_16_be", b"\x12": "euc_kr", b"\x13": "gb2312", b"\x14": "utf_16_be", b"\x15": "utf_8",
          **{bytes([n - 4]): LATIN[n] for n in (*range(5, 12), 13, 14, 15)},
          **{bytes([0x10, 0, n]): codec for n, codec in LATIN.items()}}
# ISO/IEC 6937 from 0xA0 on, the euro at 0xA4; blanks where there is none or a diacritic.
ISO_6937 = ("\xa0¡¢£€¥ §¤‘“«←↑→↓°±²³×µ¶·÷’”»¼½¾¿                —¹®©™♪¬¦    ⅛⅜⅝⅞"
            "ΩÆĐªĦ ĲĿŁØŒºÞŦŊŉĸæđðħıĳŀłøœßþŧŋ\xad")
MARKS = dict(zip(range(0xC1, 0xD0), "\u0300\u0301\u0302\u0303\u0304\u0306\u0307\u0308 \u030a\u0327 \u030b\u0328\u030c"))


def iso_6937(text):
    characters, mark = "", ""
    for byte in text:
        if byte in MARKS:
            mark = MARKS[byte]
        else:
            characters += (chr(byte) if byte < 0xA0 else ISO_6937[byte - 0xA0]) + mark
            mark = ""
    return characters


def decoded(field):
    """As the list shows it: in composed form, a blank for a line break, no other control character."""
    selector = field[:3] if field[:1] == b"\x10" else field[:1]
    text = iso_6937(field) if selector >= b"\x20" else field[len(selector):].decode(CODECS[selector]) if field else ""
    return unicodedata.normalize("NFC", "".join(
        " " if c in "\x8a\ue08a" else c for c in text if c in "\x8a\ue08a" or unicodedata.category(c) not in ("Cc", "Co"))).rstrip()


def names(sections):
    """The last name of each event, by service."""
    found = {}
    for section in filter(lambda section: section[5] & 1, sections):
        events, service = section[14:-4], section[3:5] + section[8:12]
        while events:
            size = 12 + (int.from_bytes(events[10:12], "big") & 0xFFF)
            loop = events[12:size]
            while loop:
                if loop[0] == 0x4D and loop[5]:
                    found[service + events[:2]] = loop[6:6 + loop[5]]
                loop = loop[2 + loop[1]:]
            found.setdefault(service + events[:2], b"")
            events = events[size:]
    return (f"{int.from_bytes(key[:2], 'big')} {decoded(name)}".rstrip() for key, name in found.items())


def crc(data):
    register = 0xFFFFFFFF
    for byte in data:
        register ^= byte << 24
        for _ in range(8):
            register = (register << 1 ^ (0x04C11DB7 if register >> 31 else 0)) & 0xFFFFFFFF
    return register.to_bytes(4, "big")


def section(number, field):
    """An EIT of one event of the service of that number."""
    descriptor = b"\x4d" + bytes([5 + len(field)]) + b"eng" + bytes([len(field)]) + field + b"\0"
    event = bytes.fromhex("0001c07912450001300080") + bytes([len(descriptor)]) + descriptor
    data = b"\x4e" + (0xB000 + 15 + len(event)).to_bytes(2, "big") + number.to_bytes(2, "big")
    data += b"\xc1\0\0\0\1\0\1\0\x4e" + event
    return data + crc(data)


def every_character():
    """Fields of all characters that both sides are to know, by table."""
    upper = range(0xA0, 0x100)
    yield from (bytes([b]) + b"x" for b in upper if b - 0xA0 < len(ISO_6937) and ISO_6937[b - 0xA0] != " ")
    yield from (bytes([mark]) + bytes([letter]) for mark, m in MARKS.items() if m != " "
                for letter in b"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz")
    for selector, codec in CODECS.items():
        if codec in LATIN.values():
            units = [bytes([b]) for b in upper]
        elif codec in ("euc_kr", "gb2312"):
            units = [bytes([a, b]) for a in range(0xA1, 0xFF) for b in range(0xA1, 0xFF)]
        else:
            units = [chr(c).encode(codec) for c in (*range(0x20, 0x7F), *range(0xA0, 0x2000), *range(0x3000, 0xD800))]
        known = [u for u in units if u.decode(codec, "ignore")]
        yield from (selector + b"".join(known[i:i + 60]) for i in range(0, len(known), 60))


def run(*words, text=""):
    return subprocess.run(words, input=text, capture_output=True, check=True, text=True,
                          env={"LC_ALL": "C.UTF-8"}).stdout.splitlines()


def compare(tool, what, sections):
    lines = run(tool, "events", "--quiet", "--input", "sections", "-", text="\n".join(map(bytes.hex, sections)))
    service, event = (lines[0].find(title) if lines else 0 for title in ("service", "event"))
    shown = collections.Counter((line[service:event].strip() + " " + unicodedata.normalize("NFC", line[event:])).rstrip()
                                for line in lines[1:])
    expected = collections.Counter(names(sections))
    print(f"{what}: {expected.total()} names", *(f"not shown: {name}" for name in expected - shown),
          *(f"shown: {name}" for name in shown - expected), sep="\n  ")
    return shown == expected


def main():
    tool, *recordings = sys.argv[1:]
    is_right = compare(tool, "every character", [section(*pair) for pair in enumerate(every_character())])
    for recording in recordings:
        lines = (line.split() for line in run(tool, "sections", "--quiet", recording))
        is_right &= compare(tool, recording, [bytes.fromhex(words[2]) for words in lines if words[0] == "0x0012"])
    sys.exit(not is_right)


main()
