# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""One run over an archive: what is new or changed is read, and the output and its tables are brought up to date."""

from collections.abc import Collection, Iterable, Iterator

from distributed import KilledWorker

from .cluster import connect, process_ids
from .reading import Outcome
from .recordings import find, identify
from .report import Report
from .spreading import outcomes
from .store import Store
from .tables import write_tables


def run(paths: Iterable[str], out: str, report: Report, scheduler: str | None, workers: int,
        suffixes: Collection[str]) -> None:
    """Raises StoreError where the output cannot be used, and OSError where it cannot be written or no scheduler answers."""
    recordings = list(find(paths, suffixes))
    with Store(out) as store:
        report.begin(len(recordings))
        to_read = [recording for recording in recordings if not _is_done(recording, store, report)]
        if to_read:
            with connect(scheduler, workers) as client:
                report.workers(process_ids(client))
                for recording, outcome in outcomes(client, to_read):
                    _keep(recording, outcome, store, report)
        store.drop_old_lines()
        write_tables(store, out)


def _is_done(recording: str, store: Store, report: Report) -> bool:
    known = store.identity(recording)
    try:
        is_done = known is not None and known == identify(recording)
    except OSError:  # told of when it is read
        return False
    if is_done:
        report.unchanged()
    return is_done


def _keep(recording: str, outcome: Outcome | Exception, store: Store, report: Report) -> None:
    if isinstance(outcome, Outcome):
        store.append(outcome.lines)
        if outcome.error is None:
            report.read()
        else:
            report.failed(recording, outcome.error)
    else:
        # Not the recording's own fault, as far as is known: what the output has of it stays, and the next run tries again.
        report.failed(recording, _reason(outcome))


def _reason(failure: Exception) -> str:
    if isinstance(failure, KilledWorker):
        return "every worker that read it was lost"
    if isinstance(failure, OSError):
        return failure.strerror or str(failure)
    return f"{type(failure).__name__}: {failure}"
