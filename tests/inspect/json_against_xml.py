# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""Holds what `json` prints of streams against what `xml` saves: json_against_xml.py TOOL STREAM..."""
import json
import re
import subprocess
import sys
import xml.etree.ElementTree as ElementTree

compared = 0


def output(tool, command, stream):
    run = subprocess.run([tool, command, "--quiet", stream], stdout=subprocess.PIPE, check=False)
    return run.stdout.decode("utf-8")  # whole characters, or this raises


def without_repeated_names(pairs):
    assert len({name for name, _ in pairs}) == len(pairs), f"a name stands twice: {pairs}"
    return dict(pairs)


def compare_value(name, value, text):
    """One attribute; texts beyond ASCII are compared by the tests of the character tables."""
    global compared
    if isinstance(value, bool):
        same = text == str(int(value))
    elif isinstance(value, (int, float)):
        same = float(text) == value
    elif isinstance(value, list):
        groups = re.findall(".{8}", text)
        same = [int(group, 16) for group in groups] == [number & 0xFFFFFFFF for number in value]
    elif isinstance(value, dict):
        same = [int(number, 16) for number in text.split()] == [value[key] & 0xFFFFFFFF for key in value]
    elif value is not None and re.fullmatch(r"\d{4}-\d\d-\d\dT.*Z|PT\d+H\d+M\d+S", value):
        same = sorted(map(int, text.split())) == sorted(map(int, re.findall(r"\d+", value)))
    else:
        same = value is None or not (text.isascii() and text.isprintable()) or text in value
    assert same, f"{name}: {value!r} is not {text!r}"
    compared += 1


def compare_object(fields, element):
    lists = {child.tag: child for child in element}
    for name, text in element.attrib.items():
        compare_value(name, fields[name], text)
    for name, child in lists.items():
        inner = fields[name]
        if isinstance(inner, list):
            assert len(inner) == len(child), f"{name}: {len(inner)} is not {len(child)}"
            for item, item_element in zip(inner, child):
                assert item.get("name", item_element.tag) == item_element.tag or "tag" not in item
                compare_object(item, item_element)
        elif isinstance(inner, dict):
            compare_object(inner, child)


def compare_stream(tool, stream):
    lines = output(tool, "json", stream).splitlines()
    elements = list(ElementTree.fromstring(output(tool, "xml", stream)))
    assert len(lines) == len(elements), f"{len(lines)} lines, {len(elements)} elements"
    for line, element in zip(lines, elements):
        section = json.loads(line, object_pairs_hook=without_repeated_names)
        if element.tag == "error":
            assert (section["error"]["what"], section["class"]) == (element.get("what"), element.get("class"))
        else:
            assert section["class"] == element.tag
            compare_object(section["table"], element)


for path in sys.argv[2:]:
    compare_stream(sys.argv[1], path)
print(f"{compared} values are the same")
sys.exit(0 if compared else 1)
