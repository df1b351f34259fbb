#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""Compares the cases of extended/ with what tshark makes of the same bytes.

compare_tshark.py [TSHARK]: puts each case into an SDT of a stream, and looks in what tshark shows for the values of
the case's dump, which the test of the library holds. Exit status 77 without tshark, 1 where a value differs.
"""
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as tree

CASES = pathlib.Path(__file__).parent / "extended"
FIRST_SERVICE = 0x100

# What tshark calls the fields of the classes that it knows, by the name in dumps; where it shows more bits at once,
# how far those of the field stand from the right, and their mask.
FIELDS = {
    "AVC_video_descriptor": {
        "profile_idc": "avc_vid.profile_idc", "constraint_set0_flag": "avc_vid.constraint_set0",
        "constraint_set1_flag": "avc_vid.constraint_set1", "constraint_set2_flag": "avc_vid.constraint_set2",
        "constraint_set3_flag": ("avc_vid.compatible_flags", 4, 1),
        "constraint_set4_flag": ("avc_vid.compatible_flags", 3, 1),
        "constraint_set5_flag": ("avc_vid.compatible_flags", 2, 1),
        "AVC_compatible_flags": ("avc_vid.compatible_flags", 0, 3),
        "level_idc": "avc_vid.level_idc", "AVC_still_present": "avc_vid.still_present",
        "AVC_24_hour_picture_flag": "avc_vid.24h_picture_flag"},
    "default_authority_descriptor": {"default_authority": "default_authority.name"},
    "TVA_id_descriptor": {"ids.TVA_id": "tva.id", "ids.running_status": "tva.status"},
    "content_identifier_descriptor": {
        "crids.crid_type": "content_identifier.crid_type", "crids.crid_location": "content_identifier.crid_location",
        "crids.crid": "content_identifier.crid_bytes"},
    "XAIT_location_descriptor": {
        "xait_original_network_id": "xait.onid", "xait_service_id": "xait.sid",
        "xait_version_number": "xait.version", "xait_update_policy": "xait.update_policy"},
    "FTA_content_management_descriptor": {
        "user_defined": "fta.user_defined", "do_not_scramble": "fta.scramble",
        "control_remote_access_over_internet": "fta.remote", "do_not_apply_revocation": "fta.revocation"},
    "supplementary_audio_descriptor": {
        "mix_type": "ext.supp_audio.mix_type", "editorial_classification": "ext.supp_audio.ed_cla",
        "language_code_present": "ext.supp_audio.lang_code_present",
        "ISO_639_language_code": "ext.supp_audio.lang_code"},
    # tshark takes it for the one of NorDig, whose numbers have 14 bits.
    "logical_channel_descriptor": {
        "services.service_id": "nordig.lcd.svc_list.id", "services.visible_service_flag": "nordig.lcd.svc_list.visible",
        "services.logical_channel_number": ("nordig.lcd.svc_list.lcn", 0, 0x3FF)},
    "logical_channel_descriptor_version_1": {
        "services.service_id": "nordig.lcd.svc_list.id", "services.visible_service_flag": "nordig.lcd.svc_list.visible",
        "services.logical_channel_number": "nordig.lcd.svc_list.lcn"},
    "logical_channel_descriptor_version_2": {
        "channel_lists.channel_list_id": "nordig.lcd.ch_list.id",
        "channel_lists.channel_list_name": "nordig.lcd.ch_list.name",
        "channel_lists.country_code": "nordig.lcd.country_code",
        "channel_lists.services.service_id": "nordig.lcd.svc_list.id",
        "channel_lists.services.visible_service_flag": "nordig.lcd.svc_list.visible",
        "channel_lists.services.logical_channel_number": "nordig.lcd.svc_list.lcn"},
}


def assemble(text):
    """Bytes of the notation of the case files, as far as these cases use it."""
    out, open_at = bytearray(), []
    for quoted, digits, bracket in re.findall(r'"([^"]*)"|([0-9A-Fa-f]{2})|([\[\]])', text):
        if bracket == "[":
            open_at.append(len(out))
            out.append(0)
        elif bracket:
            begin = open_at.pop()
            out[begin] = len(out) - begin - 1
        else:
            out += bytes.fromhex(digits) if digits else quoted.encode("latin-1")
    return bytes(out)


def read_cases():
    """(name, bytes, specifier, dump lines) of each step that is built."""
    cases = []
    for file in sorted(CASES.glob("*.txt")):
        for block in file.read_text().split("\nhex")[1:]:
            lines = ("hex" + block).splitlines()
            values = {key: [line[7:] for line in lines if line.startswith(key)] for key in ("hex", "whose", "dump")}
            dump = " | ".join(values["dump"]).split(" | ")
            if len(dump) > 1:
                specifier = int("".join(values["whose"]) or "0", 16)
                cases.append((dump[0].split()[-1], assemble("".join(values["hex"])), specifier, dump[1:]))
    return cases


def crc32(data):
    crc = 0xFFFFFFFF
    for byte in data:
        crc ^= byte << 24
        for _ in range(8):
            crc = (crc << 1 ^ (0x04C11DB7 if crc & 0x80000000 else 0)) & 0xFFFFFFFF
    return crc


def section(service, descriptors):
    entry = service.to_bytes(2, "big") + b"\xfd" + (0x8000 | len(descriptors)).to_bytes(2, "big") + descriptors
    body = b"\x00\x01\xc1\x00\x00\x00\x01\xff" + entry
    whole = b"\x42" + (0xF000 | len(body) + 4).to_bytes(2, "big") + body
    return whole + crc32(whole).to_bytes(4, "big")


def packets(sections):
    counter, stream = 0, b""
    for one in sections:
        data, start = b"\x00" + one, 0x40
        while data:
            stream += bytes([0x47, start, 0x11, 0x10 | counter]) + data[:184].ljust(184, b"\xff")
            data, start, counter = data[184:], 0, (counter + 1) % 16
    return stream


def descriptors_shown(tshark, file):
    """Of each descriptor that tshark shows: the part of the packet that it is in, and its fields, name and value."""
    command = [tshark, "-r", file, "-Y", "mpeg_descr.tag", "-T", "pdml"]
    with subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL) as run:
        for _, packet in tree.iterparse(run.stdout):
            if packet.tag != "packet":
                continue
            for part in packet.iter("proto"):
                for element in part.iter("field"):
                    if element.find("field[@name='mpeg_descr.tag']") is not None:
                        yield part, [(field.get("name").removeprefix("mpeg_descr."), field.get("show"))
                                     for field in element.iter("field")]
            packet.clear()
    if run.returncode:
        raise RuntimeError(f"{tshark} ends with {run.returncode}")


def shown_by_tshark(tshark, stream):
    """By service_id: the fields of its last descriptor."""
    with tempfile.NamedTemporaryFile(suffix=".ts") as file:
        file.write(stream)
        file.flush()
        return {int(part.find(".//field[@name='dvb_sdt.svc.id']").get("show"), 0): fields
                for part, fields in descriptors_shown(tshark, file.name)}


def values_shown(fields, theirs):
    """What tshark has for a field of FIELDS."""
    name, shift, mask = (theirs, 0, -1) if isinstance(theirs, str) else theirs
    values = [number_or_text(value) for field, value in fields if field == name]
    return [value >> shift & mask if isinstance(value, int) else value for value in values]


def number_or_text(value):
    """tshark writes numbers in either base and bytes with colons, where dumps are hexadecimal."""
    if value in ("True", "False"):
        return int(value == "True")
    if re.fullmatch(r"([0-9a-f]{2}:)+[0-9a-f]{2}", value):
        return bytes.fromhex(value.replace(":", "")).decode("latin-1")
    return int(value, 0) if re.fullmatch(r"0x[0-9a-f]+|[0-9]+", value) else value


def dumped(lines, name):
    values = [line.partition(":")[2].strip().replace("\\20", "") for line in lines if line.partition(":")[0] == name]
    return [int(value, 16) if re.fullmatch(r"[0-9a-f]+", value) else value for value in values if value]


def main():
    tshark = sys.argv[1] if len(sys.argv) > 1 else shutil.which("tshark")
    if not tshark:
        print("no tshark")
        return 77
    cases = read_cases()
    stream = packets(section(FIRST_SERVICE + i, b"\x5f\x04" + specifier.to_bytes(4, "big") + whole)
                     for i, (_, whole, specifier, _) in enumerate(cases))
    shown = shown_by_tshark(tshark, stream)
    differences, compared = 0, {}
    for i, (name, whole, _, lines) in enumerate(cases):
        # tshark 4.0 does not step over a reference, and reads on behind a reserved location.
        if any(dumped(lines, "crids.crid_location")):
            continue
        for ours, theirs in FIELDS.get(name, {}).items():
            seen = values_shown(shown.get(FIRST_SERVICE + i, []), theirs)
            expected = dumped(lines, ours)
            # Fields that a condition leaves out are zeros in dumps; tshark leaves them out.
            if seen != expected and [v for v in seen if v] != [v for v in expected if v]:
                print(f"{name} {whole.hex()}: {ours} is {expected}, tshark has {seen}")
                differences += 1
            compared[name] = compared.get(name, 0) + len(seen)
    for name in FIELDS:
        print(f"{name}: {compared.get(name, 0)} values")
        differences += not compared.get(name)
    print(f"{sum(compared.values())} values of {len(compared)} classes")
    return 1 if differences else 0


if __name__ == "__main__":
    sys.exit(main())
