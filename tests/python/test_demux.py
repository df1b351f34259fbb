# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""The demultiplexer that hosts derive from."""

import threading

import pytest
import sivane
from conftest import SAMPLE

STREAM = SAMPLE.read_bytes()


class Recorder(sivane.Demux):
    """Keeps what its hook gets, and raises where it is told to."""

    def __init__(self, **options):
        super().__init__(**options)
        self.seen = []
        self.raises = {}
        self.add_usual_handlers()

    def on_psi_section(self, section):
        self.seen.append(section)
        if len(self.seen) in self.raises:
            raise self.raises[len(self.seen)]
        if section.pid == 0:
            for program in section.table.program_infos:
                self.add_psi_handler(program.program_map_pid, 2)


def usual(sections):
    return [(one.pid, one.offset, one.packet, one.bytes) for one in sections if one.table_id in (0, 2)]


def test_hooks_get_the_sections():
    whole, pieces = Recorder(), Recorder()
    whole.push(STREAM)
    for start in range(0, len(STREAM), 1000):
        pieces.push_pieces(STREAM[start : start + 1000])
    pieces.finish()
    expected = usual(sivane.sections(STREAM))
    assert usual(whole.seen) == usual(pieces.seen) == expected != []
    assert whole.packets == pieces.packets == len(STREAM) // 188
    assert all(section.table.table_id == section.table_id for section in whole.seen)


def test_counters():
    demux = Recorder()
    assert demux.counters(0x100) is None
    demux.count()
    demux.push(STREAM + STREAM[:188])
    assert demux.counters(0).packets > 0 and demux.counters(0).sections > 0
    assert sum(demux.counters(pid).packets for pid in range(0x2000)) == demux.packets
    demux.remove_psi_handler(0, 0)
    seen = len(demux.seen)
    demux.push(STREAM)
    assert demux.seen[seen:] and all(section.pid != 0 for section in demux.seen[seen:])


@pytest.mark.parametrize("every_section", [True, False])
def test_what_a_hook_raises_leaves_the_push(every_section):
    demux, undisturbed = Recorder(every_section=every_section), Recorder(every_section=every_section)
    undisturbed.push(STREAM)
    demux.raises = {2: RuntimeError("first"), 3: RuntimeError("second")}
    with pytest.raises(RuntimeError, match="first"):
        demux.push(STREAM)
    assert [one.bytes for one in demux.seen] == [one.bytes for one in undisturbed.seen]
    demux.push(STREAM)
    demux.raises = {len(demux.seen) + 2: KeyboardInterrupt()}
    before = len(demux.seen)
    with pytest.raises(KeyboardInterrupt):
        demux.push(STREAM * 50)
    assert len(demux.seen) == before + 2
    demux.raises = {len(demux.seen) + 1: RuntimeError("before the bad packet")}
    with pytest.raises(RuntimeError, match="before the bad packet"):
        demux.push(STREAM + b"?" * 188)
    before = len(demux.seen)
    demux.push(STREAM)
    assert len(demux.seen) == before + len(undisturbed.seen)


def test_what_is_no_packet():
    demux = Recorder()
    for wrong in [STREAM[:94], STREAM[:-1], b"?" * 188]:
        with pytest.raises(sivane.Error):
            demux.push(wrong)
    with pytest.raises(TypeError):
        demux.push(1)
    assert demux.seen == []
    demux.push(STREAM)
    assert demux.seen
    for pid, table_id in [(0x2000, 0), (-1, 0), (0, 256)]:
        with pytest.raises(ValueError):
            demux.add_psi_handler(pid, table_id)


def test_a_demux_at_work_takes_nothing_else():
    failures = []

    class Nested(Recorder):
        def on_psi_section(self, section):
            if not failures:
                with pytest.raises(RuntimeError, match="at work"):
                    self.push(STREAM)
                other = threading.Thread(target=self.from_another_thread)
                other.start()
                other.join()

        def from_another_thread(self):
            for call in [lambda: self.push(STREAM), lambda: self.add_psi_handler(0, 0), lambda: self.counters(0)]:
                try:
                    call()
                except RuntimeError as failure:
                    failures.append(str(failure))

    Nested().push(STREAM)
    assert len(failures) == 3


def test_whatever_can_be_called_is_a_hook():
    class Plain(sivane.Demux):
        pass

    seen = []
    for hook in [None, seen.append]:
        demux = Plain()
        demux.add_usual_handlers()
        if hook:
            demux.on_psi_section = hook
        demux.push(STREAM)
    assert seen
    demux.on_psi_section = None
    with pytest.raises(TypeError):
        demux.push(STREAM)


def test_hooks_without_an_end():
    class Endless(Recorder):
        def on_psi_section(self, section):
            Endless().push(STREAM)

    with pytest.raises(RecursionError):
        Endless().push(STREAM)


def test_subclasses_that_forget_their_base():
    class Forgetful(sivane.Demux):
        def __init__(self):
            pass

    with pytest.raises(TypeError):
        Forgetful()
