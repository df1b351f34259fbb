# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""Sections, fields and catalogue of streams, held against what the command-line tool prints of them."""

import gc
import io
import re
import xml.etree.ElementTree as ElementTree

import pytest
import sivane
from conftest import json_lines, told
from plain import fields_of


def line_of(section):
    """A section as the tool's `json` has it, but for its number."""
    line = {"pid": section.pid, "table_id": section.table_id, "offset": section.offset}
    try:
        table = section.table
    except sivane.Error as failure:
        return line | {"error": {"code": failure.code, "what": failure.what, "at": failure.offset}}
    line |= {"class": type(table).__name__, "table": table.to_dict()}
    return line | ({"problems": table.problems} if table.problems else {})


@pytest.mark.parametrize("tolerant", [False, True])
def test_sections_are_those_of_json(stream, tolerant):
    expected = json_lines(stream, "--tolerant" if tolerant else "--strict")
    sections = list(sivane.sections(stream, tolerant=tolerant))
    assert len(sections) == len(expected) > 0
    for section, line in zip(sections, expected):
        del line["number"]
        if "error" in line:
            del line["class"]
        assert line_of(section) == line
        assert section.offset == 188 * section.packet


def test_attributes_are_the_fields_of_json(stream):
    for section in sivane.sections(stream, tolerant=True):
        assert fields_of(section.table) == section.table.to_dict()


def test_documents_are_those_of_xml(stream):
    elements = ElementTree.fromstring("\n".join(told("xml", stream)))
    tables = [section.table for section in sivane.sections(stream)]
    assert len(tables) == len(elements)
    for table, element in zip(tables, elements):
        one = ElementTree.fromstring(table.to_xml())
        assert ElementTree.canonicalize(ElementTree.tostring(one), strip_text=True) == ElementTree.canonicalize(
            ElementTree.tostring(element), strip_text=True)
        if element.tag != "DsmCC":
            assert sivane.load_xml(table.to_xml()).to_xml() == table.to_xml()


def test_the_first_section_of_each_packet(stream):
    expected = json_lines(stream, "--input", "packets")
    sections = list(sivane.sections(stream, every_section=False))
    assert [(s.pid, s.table_id, s.offset) for s in sections] == [
        (line["pid"], line["table_id"], line["offset"]) for line in expected]


def cells_told(command, stream):
    """The cells of a list's rows, two blanks or more apart."""
    return [re.split(" {2,}", line) for line in told(command, stream)[1:] if line]


def squeezed(*cells):
    """Cells that are not empty, as the tool prints them."""
    return [" ".join(cell.split()) for cell in cells if cell.strip()]


def test_the_catalogue_is_that_of_the_lists(stream):
    known = sivane.catalogue(stream)
    assert [[cells[0], *cells[3:]] for cells in cells_told("events", stream)] == [
        squeezed(f"{event['start']:%Y-%m-%d %H:%M:%S}", event["title"]) for event in known.events]
    names = [service["name"] for service in known.services]
    told_services = "\n".join(told("services", stream))
    assert all(name in told_services for name in names)
    assert len(cells_told("services", stream)) >= len(names)
    pids = {f"0x{pid:04x}" for program in known.programs if program["map_pid"]
            for pid in [program["map_pid"], *(one["pid"] for one in program["streams"])]}
    assert pids <= {row[1] for row in cells_told("programs", stream)}
    networks = "\n".join(told("networks", stream))
    for network in known.networks:
        assert network["name"] in networks
        assert all(f"stream {one['transport_stream']} of network {one['original_network']}" in networks
                   for one in network["streams"])


def test_rows_are_tables_of_pandas(sample):
    pandas = pytest.importorskip("pandas")
    known = sivane.catalogue(sample)
    events = pandas.DataFrame(known.events)
    assert len(events) > 0 and str(events["start"].dtype) == "datetime64[ns, UTC]"
    assert list(pandas.DataFrame(known.services)["name"]) == [service["name"] for service in known.services]


def test_a_catalogue_that_is_read_takes_nothing(sample):
    known = sivane.catalogue(sample)
    refused = []

    def push(phase, _):  # by the collector, as a finaliser would
        if phase == "start" and not refused:
            with pytest.raises(RuntimeError, match="at work") as caught:
                known.push(sample.read_bytes())
            refused.append(caught)

    held = [{} for _ in range(100)]  # more than the interpreter has at hand, without the collector
    usual = gc.get_threshold()
    gc.callbacks.append(push)
    gc.set_threshold(1)
    try:
        events = known.events
    finally:
        gc.set_threshold(*usual)
        gc.callbacks.remove(push)
    assert held and refused and events == known.events
    known.push(sample.read_bytes())


def test_sources_of_all_kinds(sample):
    expected = [section.bytes for section in sivane.sections(sample)]
    data = sample.read_bytes()
    cut = [data[i : i + 1000] for i in range(0, len(data), 1000)]
    with open(sample, "rb") as file:
        for source in [str(sample), file, io.BytesIO(data), data, bytearray(data), cut, iter(cut)]:
            assert [section.bytes for section in sivane.sections(source)] == expected
        assert not file.closed
    wide = b"".join(bytes(4) + data[i : i + 188] for i in range(0, len(data), 188))
    noisy = b"no packet" + wide
    sections = sivane.sections(noisy)
    assert [section.bytes for section in sections] == expected
    assert (sections.packets, sections.skipped_bytes) == (len(data) // 188, 9)


def test_registrations(sample):
    tables = {(section.pid, section.table_id) for section in sivane.sections(sample)}
    wanted = sorted(tables)[:2]
    assert {(s.pid, s.table_id) for s in sivane.sections(sample, registrations=wanted)} == set(wanted)
    for wrong in [[(0x2000, 0)], [(0, 256)], [(-1, 0)]]:
        with pytest.raises(ValueError):
            sivane.sections(sample, registrations=wrong)
    with pytest.raises(TypeError, match="pair of numbers"):
        sivane.sections(sample, registrations=[(0,)])
