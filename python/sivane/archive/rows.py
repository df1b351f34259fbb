# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""Lines of the output: `{"kind": "events", "recording": "/a/b.ts", ...}`, a row of a table each.

The rows of a recording stand together, and the row of the kind "recordings" closes them.
"""

import datetime
import json
from collections.abc import Mapping

KINDS = ("services", "events", "networks", "programs")
RECORDINGS = "recordings"

_START = '{"kind": "'
STARTS = tuple(f'{_START}{kind}", "recording": '.encode() for kind in (RECORDINGS, *KINDS))


def write_row(kind: str, recording: str, row: Mapping[str, object]) -> bytes:
    """A row as a line, which begins with one of `STARTS`."""
    return json.dumps({"kind": kind, "recording": recording, **row}, default=_plain).encode() + b"\n"


def split_row(line: bytes) -> tuple[str, bytes]:
    """The kind, and the line without it."""
    start, _, row = line.partition(b", ")
    return start[len(_START) : -1].decode(), b"{" + row


def _plain(value: object) -> object:
    """Times as ISO 8601 writes them, durations in seconds."""
    if isinstance(value, datetime.datetime):
        return value.isoformat()
    if isinstance(value, datetime.timedelta):
        return value.total_seconds()
    raise TypeError(f"{type(value).__name__} has no form in JSON")
