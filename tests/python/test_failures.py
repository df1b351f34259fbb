# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""What goes wrong in a source or a section, interrupts, and what stays behind."""

import contextlib
import errno
import gc
import os
import pickle
import re
import resource
import socket
import struct
import subprocess
import sys
import threading
import warnings

import pytest
import sivane
from conftest import HANGING
from section_text import assemble


def packets(section, pid=0, count=1):
    """Packets with one section each."""
    head = bytes([0x47, 0x40 | pid >> 8, pid & 0xFF])
    for number in range(count):
        yield (head + bytes([0x10 | number & 15, 0]) + section).ljust(188, b"\xff")


PAT = assemble("00 B( 1234 C1 00 00 0001 E100 crc )")


def test_errors_say_what_and_where():
    with pytest.raises(sivane.Error, match="crc error") as caught:
        sivane.parse(PAT[:-1] + b"?")
    assert (caught.value.code, caught.value.what, caught.value.offset) == (-1, "crc error", len(PAT) - 4)
    copy = pickle.loads(pickle.dumps(caught.value))
    assert (str(copy), copy.code, copy.offset) == (str(caught.value), -1, len(PAT) - 4)
    for size in range(len(PAT)):
        with pytest.raises(sivane.Error):
            sivane.parse(PAT[:size])
    for text in ["", "<Pat/>", "<nothing/>", "<Pat"]:
        with pytest.raises(sivane.Error):
            sivane.load_xml(text)
    with pytest.raises(TypeError):
        sivane.parse("text")
    with pytest.raises(ValueError, match="no-such-table"):
        sivane.parse(PAT, charset="no-such-table")


def test_tolerant_tables_keep_what_is_whole():
    broken = assemble("02 B( 0001 C1 00 00 E100 F( 0A[ 65 ] 0A[ 656E67 00 ] ) crc )")
    with pytest.raises(sivane.Error):
        sivane.parse(broken)
    table = sivane.parse(broken, tolerant=True)
    assert [type(one) for one in table.descriptors] == [sivane.DescriptorISO639Language, sivane.DescriptorGeneral]
    assert [(problem["tag"], problem["what"]) for problem in table.problems] == [(0x0A, "descriptor length mismatch")]


def test_sources_without_packets(tmp_path):
    for source in [b"", b"half a packet"[:6] * 15, [b"", b"abc"], tmp_path / "empty"]:
        (tmp_path / "empty").touch()
        with pytest.raises(sivane.Error, match="no packet was found"):
            list(sivane.sections(source))
        with pytest.raises(sivane.Error, match="no packet was found"):
            sivane.catalogue(source)
    with pytest.raises(FileNotFoundError):
        sivane.sections(tmp_path / "nothing")
    with pytest.raises(IsADirectoryError):
        list(sivane.sections(tmp_path))
    for wrong in ["udp://", "udp://239.0.0.1", "rtp://239.0.0.1:0", "udp://nowhere:5000", "udp://:5000?ttl=1",
                  "udp://239.0.0.1:5000?localaddr=::1",
                  "dvb://", "dvb://a", "dvb://0/0/0"]:
        with pytest.raises(ValueError):
            sivane.sections(wrong)
    with pytest.raises(TypeError):
        list(sivane.sections(["text"]))


def test_half_a_packet_at_the_end():
    stream = b"".join(packets(PAT, count=9))
    sections = sivane.sections(stream + stream[:94])
    assert [section.bytes for section in sections] == [PAT] * 9
    assert sections.skipped_bytes == 94


def test_a_file_that_vanishes(tmp_path):
    path = tmp_path / "recording.ts"
    path.write_bytes(b"".join(packets(PAT, count=5000)))
    sections = sivane.sections(path)
    next(sections)
    path.unlink()
    assert len(list(sections)) == 4999

    class Failing:
        def read(self, size, left=[188 * 100]):
            if not left:
                raise OSError("the disk is gone")
            return b"".join(packets(PAT, count=left.pop() // 188))

    taken = []
    with pytest.raises(OSError, match="the disk is gone"):
        for section in sivane.sections(Failing()):
            taken.append(section)
    assert len(taken) > 90
    with pytest.raises(OSError, match="the disk is gone"):
        sivane.catalogue(Failing())


def test_a_source_that_does_not_wait():
    reading, writing = os.pipe()
    os.set_blocking(reading, False)
    with open(reading, "rb", buffering=0) as file, open(writing, "wb", buffering=0) as other:
        other.write(b"".join(packets(PAT, count=9)))
        with pytest.raises(BlockingIOError):
            list(sivane.sections(file))


def test_files_are_closed(tmp_path):
    path = tmp_path / "recording.ts"
    path.write_bytes(b"".join(packets(PAT, count=5000)))
    before = len(os.listdir("/proc/self/fd"))
    with warnings.catch_warnings():
        warnings.simplefilter("error")
        for _ in sivane.sections(path):
            break
        with sivane.sections(path) as sections:
            next(sections)
        sivane.sections(path)
        list(sivane.sections(path))
        gc.collect()
    assert len(os.listdir("/proc/self/fd")) == before
    assert list(sections) == []


def test_adapters(tmp_path, monkeypatch):
    # A file stands in for the device: it gives packets, and then there are no more.
    device = tmp_path / "adapter2/demux1"
    device.parent.mkdir()
    device.write_bytes(b"".join(packets(PAT, count=5000)))
    requests, overflows = [], [OSError(errno.EOVERFLOW, "lost")]
    read = os.read

    def overflow_once(*arguments):
        if overflows:
            raise overflows.pop()
        return read(*arguments)

    monkeypatch.setattr("sivane._adapter.DEVICES", str(tmp_path))
    with pytest.raises(OSError):
        sivane.sections("dvb://2/1")  # takes no filter
    monkeypatch.setattr("fcntl.ioctl", lambda file, request, argument: requests.append((request, argument)))
    monkeypatch.setattr("os.read", overflow_once)
    assert len(list(sivane.sections("dvb://2/1"))) == 5000 and not overflows
    assert requests[1] == (0x40146F2C, bytes.fromhex("0020 0000 00000000 03000000 14000000 04000000"))
    with pytest.raises(FileNotFoundError):
        sivane.sections("dvb://2")


def free_port():
    with contextlib.closing(socket.socket(socket.AF_INET, socket.SOCK_DGRAM)) as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


@pytest.mark.parametrize("scheme", ["udp", "rtp"])
def test_streams_of_the_network(scheme):
    port = free_port()
    sections = sivane.sections(f"{scheme}://127.0.0.1:{port}")
    order = list(range(20))
    if scheme == "rtp":
        order[3], order[4] = 4, 3
    sections_of = [assemble(f"00 B( {number:04X} C1 00 00 crc )") for number in range(20)]
    with contextlib.closing(socket.socket(socket.AF_INET, socket.SOCK_DGRAM)) as sender:
        for number in order:
            head = struct.pack(">BBHII", 0x80, 33, 65530 + number & 0xFFFF, 0, 1) if scheme == "rtp" else b""
            packet = bytearray(next(packets(sections_of[number])))
            packet[3] = 0x10 | number & 15
            sender.sendto(head + packet, ("127.0.0.1", port))
    assert [next(sections).table.context_id for _ in range(10)] == list(range(10))
    sections.close()


# The timer counts the time that the process itself computes, or waits: however busy the machine is, it ends in the middle of
# the work, which has no end, or takes ten times as long.
INTERRUPTED = """
import functools, itertools, signal, sivane, sys

class Slow(sivane.Demux):
    on_psi_section = functools.partial(([0] * 30_000).count)  # no code of Python, which would look for signals itself

packets = sys.stdin.buffer.read()
demux = Slow()
demux.add_psi_handler(0, 0)
listening = sivane.sections("udp://127.0.0.1:%d")
for ended in (signal.SIGPROF, signal.SIGALRM):
    signal.signal(ended, signal.default_int_handler)
try:
    signal.setitimer(%s, 0.2)
    %s
except KeyboardInterrupt:
    print("interrupted after", demux.packets)
"""


@pytest.mark.parametrize("timer, work", [
    ("signal.ITIMER_PROF", "list(one.table for one in sivane.sections(itertools.repeat(packets)) if one.pid)"),
    ("signal.ITIMER_PROF", "sivane.catalogue(itertools.repeat(packets))"),
    ("signal.ITIMER_PROF", "demux.push(packets)"),
    ("signal.ITIMER_REAL", "list(listening)"),
])
def test_the_keyboard_interrupts(timer, work):
    run = subprocess.run([sys.executable, "-c", INTERRUPTED % (free_port(), timer, work)],
                         input=b"".join(packets(PAT, count=10_000)), capture_output=True, timeout=HANGING, check=False)
    taken = re.fullmatch(rb"interrupted after (\d+)\n", run.stdout)
    assert taken and int(taken[1]) < 10_000, run.stderr.decode()


LEFT_AT_WORK = """
import itertools, sivane, sys, threading

class Hooked(sivane.Demux):
    def on_psi_section(self, section):
        begun.set()

def push():
    demux.add_psi_handler(0, 0)
    while True:
        demux.push(packets)

packets = sys.stdin.buffer.read()
demux = Hooked()
begun = threading.Event()
for work in [push, lambda: any(one.pid for one in sivane.sections(itertools.repeat(packets))), lambda: sivane.catalogue(itertools.repeat(packets))]:
    threading.Thread(target=work, daemon=True).start()
begun.wait()
"""


def test_the_interpreter_ends_while_threads_work():
    run = subprocess.run([sys.executable, "-c", LEFT_AT_WORK], input=b"".join(packets(PAT, count=10_000)),
                         capture_output=True, timeout=HANGING, check=False)
    assert (run.returncode, run.stderr) == (0, b"")


def test_memory_is_flat():
    """10,000 sections, each with its table, fields, and a failure."""
    text = assemble('42 B( 0001 C1 00 00 0002 FF 0003 FC 8( 48[ 01 [ "Apfel" ] [ 05 C4 ] ] ) crc )')
    stream = b"".join(packets(text, pid=0x11, count=1000))

    def read():
        for section in sivane.sections(stream):
            table = section.table
            assert table.service_infos[0].descriptors[0].service_name == "Ä"
            table.to_dict(), table.to_xml(), table.dump(), repr(table), dir(table), section.table.service_infos
            with contextlib.suppress(sivane.Error, AttributeError):
                sivane.parse(text[:-1] + b"?")

    read()
    objects = len(gc.get_objects())
    size = resource.getrusage(resource.RUSAGE_SELF).ru_maxrss
    counts = [sys.getrefcount(value) for value in (None, sivane.Sdt, sivane.DescriptorService)]
    for _ in range(10):
        read()
    gc.collect()
    assert len(gc.get_objects()) <= objects + 50
    assert [sys.getrefcount(value) for value in (None, sivane.Sdt, sivane.DescriptorService)][1:] == counts[1:]
    quarantine = 300_000 if "asan" in os.environ.get("LD_PRELOAD", "") else 0
    assert resource.getrusage(resource.RUSAGE_SELF).ru_maxrss < size + 2000 + quarantine


def test_threads_have_readers_of_their_own():
    stream = b"".join(packets(PAT, count=3000))
    counts = []
    threads = [threading.Thread(target=lambda: counts.append(len(list(sivane.sections(stream))))) for _ in range(4)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert counts == [3000] * 4
