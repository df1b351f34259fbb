# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""What is read of a whole stream."""

from collections.abc import Iterable

from . import _sources
from ._sivane import Catalogue


def catalogue(
    source: _sources.Source,
    *,
    registrations: Iterable[tuple[int, int]] | None = None,
    every_section: bool = True,
    charset: str = "",
    charset_always: str = "",
) -> Catalogue:
    """What a stream has: its `services`, `events`, `networks` and `programs`, each a list of dicts.

    `source` is as in `sections`. Raises `OSError` where it cannot be read, and `Error` where it holds no packet.
    """
    known = Catalogue(
        registrations, every_section=every_section, charset=charset, charset_always=charset_always
    )
    with _sources.open_source(source) as pieces:
        for piece in pieces:
            known.push(piece)
    known.finish()
    return known
