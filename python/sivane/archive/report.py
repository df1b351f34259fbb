# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""What a run tells: recordings that failed and the sum on standard output, how far it is on standard error."""

import sys
import time


class Report:
    """Counts of one run."""

    def __init__(self, is_quiet: bool = False) -> None:
        self.failures = 0
        self._read = 0
        self._unchanged = 0
        self._total = 0
        self._start = time.monotonic()
        self._is_quiet = is_quiet
        self._shows_progress = not is_quiet and sys.stderr.isatty()

    def begin(self, total: int) -> None:
        """There are so many recordings."""
        self._total = total

    def workers(self, processes: list[int]) -> None:
        """Which processes read."""
        if not self._is_quiet:
            print(f"workers: processes {', '.join(map(str, processes))}", file=sys.stderr, flush=True)

    def read(self) -> None:
        """One more was read."""
        self._read += 1
        self._show_progress()

    def unchanged(self) -> None:
        """One more is as it was."""
        self._unchanged += 1
        self._show_progress()

    def failed(self, recording: str, reason: str) -> None:
        """One more is not in the output, or without rows."""
        self.failures += 1
        self.clear_progress()
        print(f"{_printable(recording)}: {reason}", flush=True)
        self._show_progress()

    def end(self) -> None:
        """Prints the sum."""
        self.clear_progress()
        recordings = "1 recording" if self._total == 1 else f"{self._total} recordings"
        print(f"{recordings}: {self._read} read, {self._unchanged} unchanged, {self.failures} failed; "
              f"{time.monotonic() - self._start:.1f} s", flush=True)

    def clear_progress(self) -> None:
        """Takes the line of progress from the terminal."""
        if self._shows_progress:
            print("\r\033[K", end="", file=sys.stderr, flush=True)

    def _show_progress(self) -> None:
        if self._shows_progress:
            done = self._read + self._unchanged + self.failures
            print(f"\r{done} of {self._total}, {self.failures} failed", end="", file=sys.stderr, flush=True)


def _printable(path: str) -> str:
    """A name of any bytes, on one line, without a control sequence for the terminal."""
    return "".join(letter if letter.isprintable() else ascii(letter)[1:-1] for letter in path)
