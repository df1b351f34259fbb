# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""Where bytes come from: whatever a source is, it becomes pieces of bytes."""

import errno
import os
import sys
from collections.abc import Callable, Iterable, Iterator
from types import TracebackType
from typing import Protocol, TypeAlias, runtime_checkable

from . import _adapter, _network

PIECE = 1 << 16
"""Bytes that are searched at once, without the interpreter's lock."""

Bytes: TypeAlias = bytes | bytearray | memoryview


@runtime_checkable
class Readable(Protocol):
    """What has bytes to read, as a file that is open for them."""

    def read(self, size: int, /) -> bytes | None: ...


Source: TypeAlias = str | os.PathLike[str] | Readable | Bytes | Iterable[Bytes]


def _nothing_to_close() -> None:
    pass


class Pieces(Iterator[Bytes]):
    """The bytes of a source, a piece at a time."""

    def __init__(self, pieces: Iterator[Bytes], close: Callable[[], None] = _nothing_to_close) -> None:
        self._pieces = pieces
        self.close = close

    def __next__(self) -> Bytes:
        return next(self._pieces)

    def __enter__(self) -> "Pieces":
        return self

    def __exit__(
        self, kind: type[BaseException] | None, raised: BaseException | None, trace: TracebackType | None
    ) -> None:
        self.close()

    def __del__(self) -> None:
        self.close()


def open_source(source: Source) -> Pieces:
    """The pieces of a source, none above `PIECE` bytes. What is opened here is closed by the pieces."""
    if isinstance(source, str) and _network.is_address(source):
        datagrams = _network.open_address(source)
        return Pieces(iter(datagrams), datagrams.close)
    if isinstance(source, str) and _adapter.is_adapter(source):
        adapter = _adapter.Adapter(source, PIECE)
        return Pieces(adapter, adapter.close)
    if isinstance(source, str) and source == "-":
        return Pieces(_read(sys.stdin.buffer))
    if isinstance(source, (str, os.PathLike)):
        file = open(source, "rb", buffering=0)
        return Pieces(_read(file), file.close)
    if isinstance(source, (bytes, bytearray, memoryview)):
        return Pieces(_cut(source))
    if isinstance(source, Readable):
        return Pieces(_read(source))
    return Pieces(piece for block in source for piece in _cut(block))


def _read(file: Readable) -> Iterator[Bytes]:
    while piece := file.read(PIECE):
        yield piece
    if piece is None:
        raise BlockingIOError(errno.EAGAIN, "the source does not wait for what is still to come")


def _cut(block: Bytes) -> Iterator[Bytes]:
    whole = memoryview(block).cast("B")
    for start in range(0, len(whole), PIECE):
        yield whole[start : start + PIECE]
