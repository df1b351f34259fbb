# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""Where bytes come from: whatever a source is, it becomes pieces of bytes."""

import contextlib
import os
from collections.abc import Iterable, Iterator
from typing import IO, Any, TypeAlias

PIECE = 1 << 18
"""Bytes that are searched at once, without the interpreter's lock."""

Bytes: TypeAlias = bytes | bytearray | memoryview
Source: TypeAlias = str | os.PathLike[str] | IO[bytes] | Iterable[Bytes] | Bytes


@contextlib.contextmanager
def open_source(source: Source) -> Iterator[Iterator[Bytes]]:
    """The pieces of a source, none above `PIECE` bytes. A file that was opened here is closed at the end."""
    if isinstance(source, (str, os.PathLike)):
        with open(source, "rb", buffering=0) as file:
            yield _pieces_of_file(file)
    elif isinstance(source, (bytes, bytearray, memoryview)):
        yield _cut(source)
    elif hasattr(source, "read"):
        yield _pieces_of_file(source)
    else:
        yield (piece for block in source for piece in _cut(block))


def _pieces_of_file(file: Any) -> Iterator[Bytes]:
    while piece := file.read(PIECE):
        yield piece


def _cut(block: Bytes) -> Iterator[Bytes]:
    if len(block) <= PIECE:
        yield block
        return
    whole = memoryview(block).cast("B")
    for start in range(0, len(whole), PIECE):
        yield whole[start : start + PIECE]
