# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""The output: a file of JSON lines, which is its own journal."""

import fcntl
import json
import os
from collections.abc import Iterator
from types import TracebackType
from typing import BinaryIO, NamedTuple

from .recordings import Identity
from .rows import STARTS


class StoreError(Exception):
    """The output cannot be used as it is."""


class _Entry(NamedTuple):
    identity: Identity
    start: int  #: of its lines, in bytes
    end: int


class Store:
    """The lines of the recordings that were read, on disk; in memory, where they are.

    Those of a recording are appended together and count with the last one of them: what a kill left half written is cut
    off when the file is opened again. Of a recording that was read again the later lines count, until `drop_old_lines`
    leaves them alone.
    """

    def __init__(self, path: str) -> None:
        """Opens the file, or makes it. StoreError where it is none or holds something else, or another process writes it."""
        self._path = os.path.realpath(path)  # a link stays one when the file is replaced
        self._entries: dict[str, _Entry] = {}
        self._file = _open_alone(self._path)
        try:
            self._take_stock()
        except BaseException:
            self._file.close()
            raise

    def __enter__(self) -> "Store":
        return self

    def __exit__(self, kind: type[BaseException] | None, fault: BaseException | None, trace: TracebackType | None) -> None:
        self._file.close()

    def identity(self, recording: str) -> Identity | None:
        """As the recording was when its lines were written; None where it has none."""
        entry = self._entries.get(recording)
        return entry.identity if entry else None

    def append(self, lines: bytes) -> None:
        """Adds the lines of a recording, which count from now on."""
        start = self._file.seek(0, os.SEEK_END)
        self._file.write(lines)
        self._file.flush()
        self._note(lines[lines.rfind(b"\n", 0, -1) + 1 :], start, start + len(lines))

    def lines(self) -> Iterator[bytes]:
        """The lines that count, in the order of the file."""
        for entry in sorted(self._entries.values(), key=lambda entry: entry.start):
            position = self._file.seek(entry.start)
            while position < entry.end:
                line = self._file.readline()
                if not line:
                    raise StoreError(f"{self._path}: another program cut it off")
                position += len(line)
                yield line

    def drop_old_lines(self) -> None:
        """Leaves each recording the lines that count alone. The file is replaced as a whole."""
        if self._file.seek(0, os.SEEK_END) == sum(entry.end - entry.start for entry in self._entries.values()):
            return
        with open(self._path + ".new", "wb") as new:
            new.writelines(self.lines())
            new.flush()
            os.fsync(new.fileno())
        os.replace(self._path + ".new", self._path)
        self._file.close()
        self._file = _open_alone(self._path)
        self._entries.clear()
        self._take_stock()

    def _take_stock(self) -> None:
        self._file.seek(0)
        start = position = 0
        for line in self._file:
            if not any(line[: len(known)] == known[: len(line)] for known in STARTS):
                raise self._foreign(position)
            end = position + len(line)
            if line.startswith(STARTS[0]) and line.endswith(b"\n"):
                try:
                    self._note(line, start, end)
                except (ValueError, KeyError, TypeError):
                    raise self._foreign(position) from None
                start = end
            position = end
        if position > start:
            self._file.truncate(start)

    def _foreign(self, position: int) -> StoreError:
        return StoreError(f"{self._path}: byte {position} was not written by this program")

    def _note(self, last_line: bytes, start: int, end: int) -> None:
        fields = json.loads(last_line)
        self._entries[fields["recording"]] = _Entry(Identity(*(fields[name] for name in Identity._fields)), start, end)


def _open_alone(path: str) -> BinaryIO:
    if os.path.exists(path) and not os.path.isfile(path):
        raise StoreError(f"{path}: not a regular file")
    file = open(path, "r+b" if os.path.exists(path) else "x+b")
    try:
        fcntl.flock(file, fcntl.LOCK_EX | fcntl.LOCK_NB)
        if not os.path.samestat(os.fstat(file.fileno()), os.stat(path)):
            raise BlockingIOError
    except BlockingIOError:
        file.close()
        raise StoreError(f"{path}: another process writes it") from None
    return file
