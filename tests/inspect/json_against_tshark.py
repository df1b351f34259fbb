#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""Holds what `json` prints of streams against what tshark shows: json_against_tshark.py TOOL STREAM...

Whatever tshark reads of a descriptor must be a value that the tool prints for one of the same class. The other way round
it need not be: tshark leaves sections out. Exit status 77 without tshark or a stream, 1 where a value differs or where none
was compared.
"""
import collections
import json
import pathlib
import shutil
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / "descriptors"))
import compare_tshark  # noqa: E402

# Beside the classes that are built on demand: the others of which streams are full.
OF_SETS = {
    "ISO_639_language_descriptor": {
        "language_vector.ISO_639_language_code": "lang.code", "language_vector.audio_type": "lang.type"},
    "service_list_descriptor": {"servicelist.service_id": "svc_list.id", "servicelist.service_type": "svc_list.type"},
    "service_descriptor": {"service_type": "svc.type"},
    "component_descriptor": {
        "stream_content": "component.stream_content", "component_type": "component.type",
        "component_tag": "component.tag", "language_code": "component.lang_code"},
    "content_descriptor": {
        "contents.content_nibble_level1": "content.nibble_lvl_1", "contents.content_nibble_level2": "content.nibble_lvl_2"},
    "parental_rating_descriptor": {
        "ratinginfo.country_code": "parental_rating.country_code", "ratinginfo.rating": "parental_rating.rating"},
    "terrestrial_delivery_system_descriptor": {
        "bandwidth": "terr_delivery.bandwidth", "constellation": "terr_delivery.constellation",
        "guard_interval": "terr_delivery.guard_interval", "transmission_mode": "terr_delivery.transmission_mode"},
}
FIELDS = {**compare_tshark.FIELDS, **OF_SETS}
# By tag and, where that leaves it open, descriptor_tag_extension: what tshark shows carries no names of classes.
CLASSES = {
    (0x28, -1): "AVC_video_descriptor", (0x73, -1): "default_authority_descriptor", (0x75, -1): "TVA_id_descriptor",
    (0x76, -1): "content_identifier_descriptor", (0x7D, -1): "XAIT_location_descriptor",
    (0x7E, -1): "FTA_content_management_descriptor", (0x7F, 0x06): "supplementary_audio_descriptor",
    (0x83, -1): "logical_channel_descriptor", (0x0A, -1): "ISO_639_language_descriptor",
    (0x41, -1): "service_list_descriptor", (0x48, -1): "service_descriptor", (0x50, -1): "component_descriptor",
    (0x54, -1): "content_descriptor", (0x55, -1): "parental_rating_descriptor",
    (0x5A, -1): "terrestrial_delivery_system_descriptor",
}


def values_at(thing, path):
    if isinstance(thing, list):
        return [value for item in thing for value in values_at(item, path)]
    if not path:
        return [int(thing) if isinstance(thing, bool) else thing]
    return values_at(thing[path[0]], path[1:])


def descriptors_of(thing):
    if isinstance(thing, dict):
        yield from thing.get("descriptors", [])
        thing = thing.values()
    elif not isinstance(thing, list):
        return
    for inner in thing:
        yield from descriptors_of(inner)


def printed_by_tool(tool, stream):
    """By class: the values of all its descriptors, each once."""
    run = subprocess.run([tool, "json", "--quiet", stream], stdout=subprocess.PIPE, check=False)
    printed = collections.defaultdict(set)
    for line in map(json.loads, run.stdout.splitlines()):
        for whole in descriptors_of(line if line["class"] != "Ait" else {}):
            descriptor = whole.get("content", whole)
            fields = FIELDS.get(descriptor["name"], {})
            printed[descriptor["name"]].add(tuple(tuple(values_at(descriptor, path.split("."))) for path in fields))
    return printed


def shown_by_tshark(tshark, stream):
    """The same of what tshark shows; an AIT has a tag space of its own, which it does not know."""
    shown = collections.defaultdict(list)
    for part, values in compare_tshark.descriptors_shown(tshark, stream):
        known = dict(values)
        tag, extension = (int(known.get(name, "-1"), 0) for name in ("tag", "ext.tag"))
        name = CLASSES.get((tag, extension))
        if name and part.get("name") != "dvb_ait":
            fields = FIELDS[name].values()
            shown[name].append(tuple(tuple(compare_tshark.values_shown(values, theirs)) for theirs in fields))
    return shown


def main():
    tool, streams, tshark = sys.argv[1], sys.argv[2:], shutil.which("tshark")
    if not tshark or not streams:
        print("no tshark, or no stream")
        return 77
    compared, differences = collections.Counter(), 0
    for stream in streams:
        printed = printed_by_tool(tool, stream)
        for name, shown in shown_by_tshark(tshark, stream).items():
            for values in sorted(set(shown) - printed[name], key=str):
                print(f"{stream}: {name}: tshark has {values}")
                differences += 1
            compared[name] += sum(len(field) for values in shown for field in values)
    for name, count in compared.items():
        print(f"{name}: {count} values")
    on_demand = sum(compared[name] for name in compare_tshark.FIELDS)
    print(f"{sum(compared.values())} values of {len(compared)} classes, {on_demand} of classes that are built on demand")
    return 1 if differences or not on_demand else 0


if __name__ == "__main__":
    sys.exit(main())
