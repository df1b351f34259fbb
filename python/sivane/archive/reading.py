# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""The task: one recording, from its path to its lines. It runs on the workers and shares nothing."""

from typing import Any, NamedTuple

import sivane

from .recordings import identify
from .rows import KINDS, RECORDINGS, write_row

_COUNTS = ("failures", "problems", "left_out")  # as `sivane.Catalogue` has them


class Outcome(NamedTuple):
    """What is kept of a recording."""

    lines: bytes  #: its rows, the one of itself last
    error: str | None  #: why it holds nothing that can be read


def read(path: str) -> Outcome:
    """Reads a recording. OSError where that may do better another time."""
    # From before it is read, so that one that still grows counts as changed the next time.
    summary: dict[str, Any] = identify(path)._asdict()
    lines = []
    try:
        catalogue = sivane.catalogue(path)
        summary |= {name: getattr(catalogue, name) for name in _COUNTS}
        for kind in KINDS:
            rows = getattr(catalogue, kind)
            summary[kind] = len(rows)
            lines += [write_row(kind, path, row) for row in rows]
    except sivane.Error as failure:
        summary["error"] = str(failure)
    lines.append(write_row(RECORDINGS, path, summary))
    return Outcome(b"".join(lines), summary.get("error"))
