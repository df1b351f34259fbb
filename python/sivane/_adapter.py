# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""A DVB adapter, dvb://ADAPTER[/DEMUX]: the whole multiplex that it is tuned to, by the demux API of Linux."""

import contextlib
import errno
import fcntl
import os
import re
import struct
from collections.abc import Iterator

DEVICES = "/dev/dvb"
KERNEL_BUFFER = 4 << 20
"""Bytes that the system holds while the program is busy: a second of a multiplex."""

_SET_BUFFER_SIZE = 0x6F2D
_SET_PES_FILTER = 0x40146F2C
_ALL_PIDS = 0x2000
_FROM_FRONTEND, _PACKETS_TO_THIS_FILE, _OF_ANY_KIND, _AT_ONCE = 0, 3, 20, 4


def is_adapter(name: str) -> bool:
    """Whether it names an adapter and no file."""
    return name.startswith("dvb://")


class Adapter(Iterator[bytes]):
    """The packets that come, until `close`. What the system's buffer could not hold is missing."""

    def __init__(self, name: str, size: int) -> None:
        """Raises `ValueError` for what is no adapter's name, and `OSError`."""
        self._size = size
        self._file = os.open(_device(name), os.O_RDONLY | os.O_CLOEXEC)
        try:
            with contextlib.suppress(OSError):  # the usual buffer serves too
                fcntl.ioctl(self._file, _SET_BUFFER_SIZE, KERNEL_BUFFER)
            fcntl.ioctl(self._file, _SET_PES_FILTER, struct.pack(
                "@H2xIIII", _ALL_PIDS, _FROM_FRONTEND, _PACKETS_TO_THIS_FILE, _OF_ANY_KIND, _AT_ONCE))
        except BaseException:
            self.close()
            raise

    def __next__(self) -> bytes:
        while True:
            try:
                piece = os.read(self._file, self._size)
            except OSError as fault:
                if fault.errno != errno.EOVERFLOW:
                    raise
                continue
            if not piece:
                raise StopIteration
            return piece

    def close(self) -> None:
        """Stops reading."""
        if self._file >= 0:
            os.close(self._file)
        self._file = -1


def _device(name: str) -> str:
    numbers = re.fullmatch(r"dvb://([0-9]+)(?:/([0-9]+))?", name)
    if not numbers:
        raise ValueError(f"{name} is not dvb://ADAPTER[/DEMUX] in numbers")
    return f"{DEVICES}/adapter{numbers[1]}/demux{numbers[2] or 0}"
