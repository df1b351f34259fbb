# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""RTP datagrams (RFC 3550) as they arrive, and their payloads in the order in which they were sent."""

import struct
from collections.abc import Iterator
from typing import NamedTuple

WINDOW = 32
"""Packets that are held at most while one is missing."""

LARGEST_JUMP = 3000
"""Beyond it the sender has begun anew (RFC 3550, A.1)."""

_HEADER = struct.Struct(">BBHII")


class _Packet(NamedTuple):
    number: int
    sender: int
    payload: bytes


def _packet(datagram: bytes) -> _Packet | None:
    """Nothing where it is no RTP, or its lengths lead out of it."""
    if len(datagram) < _HEADER.size or datagram[0] >> 6 != 2:
        return None
    flags, _, number, _, sender = _HEADER.unpack_from(datagram)
    begin = _HEADER.size + 4 * (flags & 0x0F)
    if flags & 0x10:
        if begin + 4 > len(datagram):
            return None
        begin += 4 + 4 * struct.unpack_from(">H", datagram, begin + 2)[0]
    end = len(datagram) - (datagram[-1] if flags & 0x20 else 0)
    return _Packet(number, sender, datagram[begin:end]) if begin <= end else None


class RtpOrder:
    """Holds what comes too early until what is missing came, or is given up for lost."""

    def __init__(self) -> None:
        self._held: dict[int, bytes] = {}  # by number, which counts on past 65,535
        self._sender: int | None = None
        self._next = 0  # the number whose turn it is

    def holds_any(self) -> bool:
        """Whether something waits."""
        return bool(self._held)

    def take(self, datagram: bytes) -> Iterator[bytes]:
        """What may go on now."""
        packet = _packet(datagram)
        if packet is None:
            return
        distance = (packet.number - self._next + 0x8000) % 0x10000 - 0x8000
        if packet.sender != self._sender or abs(distance) > LARGEST_JUMP:
            yield from self.flush()
            self._sender, self._next, distance = packet.sender, packet.number, 0
        if distance >= 0:
            self._held.setdefault(self._next + distance, packet.payload)
        while self._next in self._held or len(self._held) > WINDOW:
            yield self._give_first()

    def flush(self) -> Iterator[bytes]:
        """Gives up what is missing: all that waits."""
        while self._held:
            yield self._give_first()

    def _give_first(self) -> bytes:
        number = min(self._held)
        self._next = number + 1
        return self._held.pop(number)
