# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""A table of each kind beside the output, made of its lines, as pandas reads it: a row a line of JSON."""

import contextlib
import os
from collections.abc import Iterable

from .rows import KINDS, RECORDINGS, split_row
from .store import Store


def table_paths(out: str) -> dict[str, str]:
    """Where the tables of an output are, by kind: `events.services.jsonl` beside `events.jsonl`."""
    stem = os.path.splitext(out)[0]
    return {kind: f"{stem}.{kind}.jsonl" for kind in (RECORDINGS, *KINDS)}


def write_tables(store: Store, out: str) -> None:
    """Makes the tables again where the output changed after them, each replaced as a whole."""
    paths = table_paths(out)
    if _are_newer(paths.values(), out):
        return
    with contextlib.ExitStack() as open_files:
        files = {kind: open_files.enter_context(open(path + ".new", "wb")) for kind, path in paths.items()}
        for line in store.lines():
            kind, row = split_row(line)
            files[kind].write(row)
    for path in paths.values():
        os.replace(path + ".new", path)


def _are_newer(paths: Iterable[str], out: str) -> bool:
    try:
        return min(os.stat(path).st_mtime_ns for path in paths) >= os.stat(out).st_mtime_ns
    except FileNotFoundError:
        return False
