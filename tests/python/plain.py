# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""What attributes say, in the plain values that `to_dict` has."""

import datetime

import sivane


def names_of(node):
    """The attributes that are fields, in their order."""
    of_type = set(dir(type(node)))
    return [name for name in node.__dir__() if name not in of_type]


def signed(number):
    return (number + 0x80000000) % 0x100000000 - 0x80000000


def plain(value):
    if isinstance(value, sivane.Descriptor):
        head = {"tag": value.tag, "name": value.element}
        content = {} if value.content is None else {"content": content_of(value.content)}
        return head | fields_of(value) | content
    if isinstance(value, sivane.Fields):
        return fields_of(value)
    if isinstance(value, tuple):
        return [plain(item) for item in value]
    if isinstance(value, bytes):
        return value.hex()
    if isinstance(value, datetime.datetime):
        assert value.tzinfo is datetime.timezone.utc
        return f"{value:%Y-%m-%dT%H:%M:%SZ}"
    if isinstance(value, datetime.timedelta):
        minutes, seconds = divmod(int(value.total_seconds()), 60)
        return f"PT{minutes // 60}H{minutes % 60}M{seconds}S"
    return signed(value) if type(value) is int else value


def content_of(descriptor):
    return {"name": descriptor.element} | fields_of(descriptor)


def fields_of(node):
    """The fields of an object, each read as an attribute, under the names of documents."""
    documented = [name for name in node.to_dict() if name not in ("tag", "name", "content") or not isinstance(node, sivane.Descriptor)]
    names = names_of(node)
    assert len(names) == len(documented)
    return {name: plain(getattr(node, member)) for name, member in zip(documented, names)}
