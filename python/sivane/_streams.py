# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""What is read of a whole stream."""

from collections.abc import Generator, Iterable, Iterator
from types import TracebackType

from ._sivane import Catalogue, Section, _SectionReader
from ._sources import Pieces, Source, open_source


class Sections(Iterator[Section]):
    """The sections of a stream, read as they are asked for.

    A file that `sections` opened is closed at the end, by `close`, and at the end of a `with`.
    """

    def __init__(self, pieces: Pieces, reader: _SectionReader) -> None:
        self._pieces = pieces
        self._reader = reader
        self._sections = _read(pieces, reader)

    def __iter__(self) -> Iterator[Section]:
        return self._sections

    def __next__(self) -> Section:
        return next(self._sections)

    def __enter__(self) -> "Sections":
        return self

    def __exit__(
        self, kind: type[BaseException] | None, raised: BaseException | None, trace: TracebackType | None
    ) -> None:
        self.close()

    def close(self) -> None:
        """Ends the reading."""
        self._sections.close()
        self._pieces.close()

    @property
    def packets(self) -> int:
        """Packets that were found so far."""
        return self._reader.packets

    @property
    def skipped_bytes(self) -> int:
        """Bytes so far that belong to no packet."""
        return self._reader.skipped_bytes


def _read(pieces: Pieces, reader: _SectionReader) -> Generator[Section, None, None]:
    with pieces:
        for piece in pieces:
            yield from reader.push(piece)
        yield from reader.finish()


def sections(
    source: Source,
    *,
    registrations: Iterable[tuple[int, int]] | None = None,
    every_section: bool = True,
    tolerant: bool = False,
    charset: str = "",
    charset_always: str = "",
) -> Sections:
    """The sections of a stream, in the order in which they end.

    `source` is a path, "-" for standard input, udp://, rtp:// or dvb://, a file or another object with `read`, bytes, or an
    iterable of bytes that are cut anywhere. Packets have 188, 192 or 204 bytes; bytes between them are skipped.

    `registrations` are pairs of PID and table id; without them all tables that have a class are read, those included
    whose PIDs other tables name. `every_section` follows ISO/IEC 13818-1, 2.4.4; without it the first section that
    starts in each packet is read. With `tolerant` a table keeps what is whole of a broken section. `charset` is the
    table of texts that select none, `charset_always` that of all texts, by the names of iconv.

    Raises `OSError` where the source cannot be opened or read, and `Error`, at its end, where it held no packet.
    """
    reader = _SectionReader(
        registrations,
        every_section=every_section,
        tolerant=tolerant,
        charset=charset,
        charset_always=charset_always,
    )
    return Sections(open_source(source), reader)


def catalogue(
    source: Source,
    *,
    registrations: Iterable[tuple[int, int]] | None = None,
    every_section: bool = True,
    charset: str = "",
    charset_always: str = "",
) -> Catalogue:
    """What a stream has: its `services`, `events`, `networks` and `programs`, each a list of dicts.

    The arguments are those of `sections`, and so is what it raises.
    """
    known = Catalogue(registrations, every_section=every_section, charset=charset, charset_always=charset_always)
    with open_source(source) as pieces:
        for piece in pieces:
            known.push(piece)
    known.finish()
    return known
