# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""The command line of `python -m sivane.archive`."""

import argparse
import os
import signal
import sys
from collections.abc import Sequence
from typing import NoReturn

from .recordings import SUFFIXES
from .report import Report
from .store import StoreError

ALL_WELL, SOME_FAILED, UNUSABLE, INTERRUPTED = 0, 1, 2, 128 + signal.SIGINT

_EPILOG = """\
The output holds a line of JSON for each service, event, network and program of each recording, and one for the recording
itself: its size, time, a hash of its head, how much was found, or "error", where it holds nothing that can be read.
Beside events.jsonl are the same rows as tables for pandas.read_json(..., lines=True): events.services.jsonl,
events.events.jsonl, events.networks.jsonl, events.programs.jsonl and events.recordings.jsonl.

A recording that is as it was when its line was written is passed over. Interrupted in whatever way, the next run goes on.

Exit status: 0, 1 if recordings failed, 2 if nothing could be done, 130 if interrupted.
"""


def main(arguments: Sequence[str] | None = None) -> int:
    """Runs the command; the exit status."""
    options = _parser().parse_intermixed_args(arguments)
    signal.signal(signal.SIGTERM, _terminate)
    report = Report(options.quiet)
    try:
        from .run import run  # not before --help: it takes half a second, and needs Dask

        run(options.paths, options.out, report, options.scheduler, options.workers, options.suffixes)
    except ModuleNotFoundError as missing:
        return _refuse(f"{missing}: the scheduler is in Debian's package python3-distributed")
    except KeyboardInterrupt:
        report.clear_progress()
        print("interrupted: the next run goes on from here", file=sys.stderr)
        return INTERRUPTED
    except (StoreError, OSError) as fault:
        report.clear_progress()
        return _refuse(str(fault))
    report.end()
    return SOME_FAILED if report.failures else ALL_WELL


def _parser() -> argparse.ArgumentParser:
    parser = argparse.ArgumentParser(
        prog="python3 -m sivane.archive", formatter_class=argparse.RawDescriptionHelpFormatter, epilog=_EPILOG,
        description="What many recordings of transport streams hold, read in parallel on Dask's distributed scheduler.")
    parser.add_argument("paths", nargs="+", metavar="PATH", help="a recording, or a folder of them")
    parser.add_argument("--out", required=True, metavar="FILE", help="where the lines of JSON go")
    where = parser.add_mutually_exclusive_group()
    where.add_argument("--workers", type=_count, default=len(os.sched_getaffinity(0)), metavar="N",
                       help="processes on this machine (default: one for each core)")
    where.add_argument("--scheduler", metavar="ADDRESS",
                       help="a scheduler that runs already, as tcp://host:8786; its workers see the same paths")
    parser.add_argument("--suffixes", type=_suffixes, default=SUFFIXES, metavar="LIST",
                        help=f"what recordings in folders end in (default: {','.join(SUFFIXES)})")
    parser.add_argument("--quiet", action="store_true", help="nothing but failures and the sum")
    return parser


def _count(text: str) -> int:
    if not text.isdecimal() or int(text) == 0:
        raise argparse.ArgumentTypeError("not a number from 1")
    return int(text)


def _suffixes(text: str) -> tuple[str, ...]:
    return tuple("." + suffix.strip().lstrip(".").lower() for suffix in text.split(","))


def _refuse(reason: str) -> int:
    print(f"sivane.archive: {reason}", file=sys.stderr)
    return UNUSABLE


def _terminate(number: int, _: object) -> NoReturn:
    """Ends as at an interrupt from the keyboard: workers and the folder of temporary files go too."""
    raise KeyboardInterrupt
