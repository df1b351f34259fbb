# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""Which files are recordings, and how a changed one is told from one that is as it was."""

import hashlib
import os
import stat
from collections.abc import Collection, Iterable, Iterator
from typing import NamedTuple

SUFFIXES = (".ts", ".m2ts", ".mts", ".m2t", ".tp", ".trp")
HEAD_BYTES = 1 << 16


class Identity(NamedTuple):
    """A recording is as it was while these are the same."""

    size: int  #: bytes
    mtime_ns: int  #: time of the last change, nanoseconds since 1970
    head: str  #: SHA-256 of the first 64 KiB, hexadecimal


def identify(path: str) -> Identity:
    """The identity of a regular file; OSError for anything else, before it is opened."""
    mode = os.stat(path).st_mode
    if stat.S_ISDIR(mode):
        raise OSError("a folder that cannot be read")
    if not stat.S_ISREG(mode):
        raise OSError("not a regular file")
    with open(path, "rb") as file:
        status = os.fstat(file.fileno())
        head = hashlib.sha256(file.read(HEAD_BYTES)).hexdigest()
    return Identity(status.st_size, status.st_mtime_ns, head)


def find(paths: Iterable[str], suffixes: Collection[str] = SUFFIXES) -> Iterator[str]:
    """Absolute paths, each once: the files named, and of folders, however deep, the files with one of the suffixes."""
    seen = set()
    for path in paths:
        path = os.path.abspath(path)
        for file in _walk(path, suffixes) if os.path.isdir(path) else (path,):
            if file not in seen:
                seen.add(file)
                yield file


def _walk(folder: str, suffixes: Collection[str]) -> Iterator[str]:
    # A folder that cannot be read fails as a recording would: in the report, under its name.
    unreadable: list[str] = []
    for parent, folders, files in os.walk(folder, onerror=lambda fault: unreadable.append(fault.filename)):
        folders.sort()
        for name in sorted(files):
            if os.path.splitext(name)[1].lower() in suffixes:
                yield os.path.join(parent, name)
    yield from unreadable
