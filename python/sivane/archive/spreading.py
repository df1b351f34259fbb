# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""Recordings go to the workers, and what becomes of them comes back in any order."""

import itertools
from collections.abc import Iterable, Iterator
from typing import Any

from distributed import Client, as_completed

from .reading import Outcome, read


def outcomes(client: Client, recordings: Iterable[str]) -> Iterator[tuple[str, Outcome | Exception]]:
    """Each recording with its outcome, or with why there is none: what was raised, or that its workers were lost.

    There are as many recordings under way as workers have threads: so no more results are held than that, and where a
    recording takes its worker down, again and again, none that merely waited there is given up with it.
    """
    waiting = iter(recordings)
    running: dict[str, str] = {}
    finished = as_completed()

    def submit() -> None:
        room = max(1, sum(client.nthreads().values())) - len(running)
        for recording in itertools.islice(waiting, max(0, room)):
            future = client.submit(read, recording, pure=False)
            running[future.key] = recording
            finished.add(future)

    submit()
    for future in finished:
        recording = running.pop(future.key)
        outcome = _outcome(future)
        del future  # lets the workers forget the result
        submit()
        yield recording, outcome


def _outcome(future: Any) -> Outcome | Exception:
    try:
        outcome: Outcome = future.result()
        return outcome
    except Exception as failure:
        return failure
