# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""The scheduler that gives recordings to workers: one of this machine's own, or one that runs already."""

import contextlib
import logging
import os
import signal
import tempfile
from collections.abc import Iterator

from distributed import Client, LocalCluster
from distributed.comm import get_address_host_port

PATIENCE = "30 s"


@contextlib.contextmanager
def connect(scheduler: str | None, workers: int) -> Iterator[Client]:
    """A client of the scheduler at the address or, without one, of as many workers here. OSError where there is none."""
    for told_otherwise in ("distributed", "asyncio"):  # by the report and the exit status
        logging.getLogger(told_otherwise).setLevel(logging.CRITICAL)
    with contextlib.ExitStack() as opened:
        if scheduler is None:
            with _uninterrupted():
                client = opened.enter_context(Client(_start_workers(workers, opened)))
        else:
            _check_address(scheduler)
            client = opened.enter_context(Client(scheduler, timeout=PATIENCE))
            client.wait_for_workers(1, timeout=PATIENCE)
        yield client


def _check_address(scheduler: str) -> None:
    # Before there is a client: one that fails at its address is half made, and holds up the end of the process.
    try:
        get_address_host_port(scheduler)
    except ValueError:
        raise OSError(f"{scheduler!r} is no address of a scheduler, as tcp://host:8786") from None


def process_ids(client: Client) -> list[int]:
    """The processes that the workers are."""
    return sorted(client.run(os.getpid).values())


def _start_workers(count: int, opened: contextlib.ExitStack) -> LocalCluster:
    # Processes with one thread each: reading is mostly computing, and a recording that takes its worker down takes no other
    # one along. Dask's extensions are for frames of data; one of them does not bear that a worker is lost.
    folder = opened.enter_context(tempfile.TemporaryDirectory(prefix="sivane-archive-"))
    return opened.enter_context(LocalCluster(
        n_workers=count, threads_per_worker=1, processes=True, dashboard_address=None, local_directory=folder,
        silence_logs=logging.CRITICAL, extensions={}))


@contextlib.contextmanager
def _uninterrupted() -> Iterator[None]:
    """Leaves interrupts from the keyboard aside, and lets the processes that start meanwhile do so for good.

    A terminal sends it to all of them, and the workers are to be ended in order.
    """
    before = signal.signal(signal.SIGINT, signal.SIG_IGN)
    try:
        yield
    finally:
        signal.signal(signal.SIGINT, before)
