# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""The guide's page, run; and the stubs, held against the module."""

import ast
import inspect
import re
import shutil

import pytest
import sivane
import sivane._sivane
from conftest import ROOT, SAMPLE

PAGE = (ROOT / "docs/python.md").read_text()
STUBS = [node for path in (ROOT / "python/sivane").glob("*.pyi") for node in ast.parse(path.read_text()).body]


def test_the_page_prints_what_it_says(tmp_path, monkeypatch, capsys):
    pytest.importorskip("pandas")
    shutil.copy(SAMPLE, tmp_path / "recording.ts")
    monkeypatch.chdir(tmp_path)
    blocks = re.findall(r"```python\n(.*?)```\n(?:\n```text\n(.*?)```)?", PAGE, re.DOTALL)
    assert len(blocks) > 5
    names = {}
    for code, printed in blocks:
        exec(compile(code, "docs/python.md", "exec"), names)
        out = capsys.readouterr().out
        assert not printed or out == printed


def public(names):
    return {name for name in names if not name.startswith("_")}


def test_stubs_have_what_the_module_has():
    classes = {node.name: node for node in STUBS if isinstance(node, ast.ClassDef)}
    functions = {node.name for node in STUBS if isinstance(node, ast.FunctionDef)}
    assert public(classes) | functions == public(vars(sivane._sivane))
    for name, node in classes.items():
        compiled = getattr(sivane._sivane, name, None)
        if compiled is None:
            continue  # of a record
        assert [base.id for base in node.bases] in ([], [compiled.__base__.__name__])
        told = {one.name for one in node.body if isinstance(one, ast.FunctionDef)}
        if name == "Error":
            told = {one.target.id for one in node.body if isinstance(one, ast.AnnAssign)}
        assert public(told) == public(vars(compiled)), name


def test_stubs_have_the_fields_of_each_class(monkeypatch):
    monkeypatch.syspath_prepend(ROOT / "python/stubs")
    from make_stubs import stubs

    made = stubs()
    assert len(made) > 3
    for file, text in made.items():
        assert (ROOT / "python/sivane" / file).read_text() == text, "python/stubs/make_stubs.py makes it anew"


def test_everything_has_a_docstring():
    undocumented = [name for name, value in vars(sivane).items() if name[0] != "_" and not inspect.getdoc(value)]
    for kind in [sivane.Table, sivane.Descriptor, sivane.Section, sivane.Demux, sivane.Catalogue, sivane.Counters,
                 sivane.Sections]:
        undocumented += [f"{kind.__name__}.{name}" for name, value in vars(kind).items()
                         if name[0] != "_" and not inspect.getdoc(value)]
    assert undocumented == []
