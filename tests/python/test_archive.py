# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""`python -m sivane.archive` on a small archive. .ci/archive_trial.py has a larger one, and loses a worker."""

import json
import os
import shutil
import subprocess
import sys

import pytest
from conftest import HANGING, SAMPLE

from sivane.archive.store import Store, StoreError


PATIENT = {f"DASK_DISTRIBUTED__COMM__TIMEOUTS__{name}": f"{HANGING} s" for name in ("CONNECT", "TCP")}


def run(folder, *arguments):
    """Runs the command on the folder `in`; its status and what it printed."""
    command = [sys.executable, "-m", "sivane.archive", "in", "--out", "out.jsonl", "--workers", "1", *arguments]
    ended = subprocess.run(
        command, cwd=folder, capture_output=True, text=True, timeout=HANGING, check=False, env=os.environ | PATIENT)
    return ended.returncode, ended.stdout


def states(folder):
    """Which files the output is, and when they were written."""
    return {path: (path.stat().st_ino, path.stat().st_mtime_ns) for path in folder.glob("out*")}


def rows(folder, kind):
    with open(folder / f"out.{kind}.jsonl") as table:
        return [json.loads(line) for line in table]


@pytest.fixture
def archive(tmp_path):
    (tmp_path / "in/deep").mkdir(parents=True)
    for name in ("a.ts", "deep/b.TS", "deep/notes.txt"):
        shutil.copy(SAMPLE, tmp_path / "in" / name)
    (tmp_path / "in/damaged.ts").write_bytes(bytes(5000))
    os.mkfifo(tmp_path / "in/pipe.ts")
    return tmp_path


def test_reads_what_is_new_or_changed(archive):
    pytest.importorskip("distributed")
    status, printed = run(archive, "in/a.ts")
    assert status == 1
    assert {line.partition(": ")[0] for line in printed.splitlines()} == {
        str(archive / "in/damaged.ts"), str(archive / "in/pipe.ts"), "4 recordings"}
    found = {os.path.basename(row["recording"]): row for row in rows(archive, "recordings")}
    assert found.keys() == {"a.ts", "b.TS", "damaged.ts"}
    assert found["a.ts"]["services"] == 3 and "no packet" in found["damaged.ts"]["error"]
    assert len(rows(archive, "services")) == 6

    (archive / "in/pipe.ts").unlink()
    before = states(archive)
    assert run(archive)[0] == 0
    assert states(archive) == before

    shutil.copy(SAMPLE, archive / "in/damaged.ts")
    status, printed = run(archive)
    assert status == 0 and "1 read, 2 unchanged" in printed
    assert all("error" not in row for row in rows(archive, "recordings"))
    assert len(rows(archive, "services")) == 9
    assert (archive / "out.jsonl").read_text().count('"kind": "recordings"') == 3


LINES = [b'{"kind": "services", "recording": "/a", "name": "N"}\n',
         b'{"kind": "recordings", "recording": "/a", "size": 1, "mtime_ns": 2, "head": "3"}\n']


def test_cuts_off_what_was_half_written(tmp_path):
    whole = b"".join(LINES)
    for length in range(len(whole), 2 * len(whole)):
        (tmp_path / "out").write_bytes((whole + whole)[:length])
        with Store(str(tmp_path / "out")) as store:
            assert store.identity("/a") == (1, 2, "3")
            assert b"".join(store.lines()) == whole
        assert (tmp_path / "out").read_bytes() == whole


@pytest.mark.parametrize("content", [b"<document/>", b'{"kind": "x"}\n', whole := b"".join(LINES) + b"\n", b'{"a": 1}\n' + whole,
                                     LINES[1][:-9] + b"\n", LINES[1].replace(b"size", b"Size"), LINES[1].replace(b'"/a"', b"[]")])
def test_leaves_other_files_alone(tmp_path, content):
    (tmp_path / "out").write_bytes(content)
    with pytest.raises(StoreError):
        Store(str(tmp_path / "out"))
    assert (tmp_path / "out").read_bytes() == content


def test_keeps_to_regular_files(tmp_path):
    with pytest.raises(StoreError, match="regular"):
        Store(os.devnull)
    (tmp_path / "link").symlink_to("out")
    with Store(str(tmp_path / "link")) as store:
        store.append(b"".join(LINES))
        store.append(b"".join(LINES))
        store.drop_old_lines()
        os.truncate(tmp_path / "link", 9)
        with pytest.raises(StoreError, match="cut"):
            list(store.lines())
    assert (tmp_path / "link").is_symlink()


def test_no_scheduler_has_such_an_address():
    pytest.importorskip("distributed")
    from sivane.archive.cluster import connect

    for address in ["", "nowhere", "what://nowhere:1"]:
        with pytest.raises(OSError, match="is no address"), connect(address, 1):
            pass


def test_is_written_by_one_process_at_a_time(tmp_path):
    with Store(str(tmp_path / "out")), pytest.raises(StoreError):
        Store(str(tmp_path / "out"))
