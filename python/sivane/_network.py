# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
"""Streams that come in datagrams: udp:// and rtp://, each with [@]GROUP:PORT[?localaddr=ADDRESS]."""

import ipaddress
import socket
import struct
from collections.abc import Iterator

from ._rtp import RtpOrder

RECEIVE_BUFFER = 4 << 20
"""Bytes that the system holds while the program is busy: a second of a multiplex."""

PATIENCE = 0.05
"""Seconds to wait for an RTP packet that is missing, while nothing comes."""

_LOCAL_ADDRESS = "localaddr="


def is_address(name: str) -> bool:
    """Whether it names a stream of the network and no file."""
    return name.startswith(("udp://", "rtp://"))


class Datagrams(Iterator[bytes]):
    """The payloads of a stream, in order. They end with `close`."""

    def __init__(self, listening: socket.socket, has_rtp: bool) -> None:
        self._socket = listening
        self._payloads = self._ordered() if has_rtp else self._plain()

    def __next__(self) -> bytes:
        return next(self._payloads)

    def close(self) -> None:
        """Stops listening."""
        self._socket.close()

    def _plain(self) -> Iterator[bytes]:
        while True:
            yield self._socket.recv(1 << 16)

    def _ordered(self) -> Iterator[bytes]:
        order = RtpOrder()
        while True:
            self._socket.settimeout(PATIENCE if order.holds_any() else None)
            try:
                yield from order.take(self._socket.recv(1 << 16))
            except TimeoutError:
                yield from order.flush()


def open_address(name: str) -> Datagrams:
    """Listens to an address of this machine, or joins the group. Raises `ValueError` for what is no address, and
    `OSError`."""
    scheme, _, place = name.partition("://")
    group, port, local = _parts(name, place)
    bound = group or local
    family = socket.AF_INET if bound is None or bound.version == 4 else socket.AF_INET6
    listening = socket.socket(family, socket.SOCK_DGRAM)
    try:
        listening.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
        listening.setsockopt(socket.SOL_SOCKET, socket.SO_RCVBUF, RECEIVE_BUFFER)
        listening.bind(_place(bound, port))
        _join(listening, group, local)
    except BaseException:
        listening.close()
        raise
    return Datagrams(listening, scheme == "rtp")


_Address = ipaddress.IPv4Address | ipaddress.IPv6Address | None


def _parts(name: str, place: str) -> tuple[_Address, int, _Address]:
    place, _, option = place.partition("?")
    if option and not option.startswith(_LOCAL_ADDRESS):
        raise ValueError(f"{name}: only ?{_LOCAL_ADDRESS}ADDRESS is known")
    group, colon, port = place.removeprefix("@").removesuffix("/").rpartition(":")
    if not colon or not port.isascii() or not port.isdigit() or not 0 < int(port) <= 0xFFFF:
        raise ValueError(f"{name}: a port from 1 to 65535 is missing, as in 239.1.2.3:5000")
    local = option.removeprefix(_LOCAL_ADDRESS)
    return _address(group.removeprefix("[").removesuffix("]")), int(port), _address(local)


def _address(text: str) -> _Address:
    return ipaddress.ip_address(text) if text else None


def _place(address: _Address, port: int) -> tuple[str, int] | tuple[str, int, int, int]:
    if address is None or address.version == 4:
        return "" if address is None else str(address), port
    return str(address).partition("%")[0], port, 0, _interface(address)


def _interface(address: ipaddress.IPv6Address) -> int:
    """The number of the interface that the address names behind a "%"; 0 where it names none."""
    name = address.scope_id or "0"
    return int(name) if name.isdecimal() else socket.if_nametoindex(name)


def _join(listening: socket.socket, group: _Address, local: _Address) -> None:
    if group is None or not group.is_multicast:
        return
    if group.version == 4:
        if local and local.version != 4:
            raise ValueError(f"{local} is no address of IPv4, which {group} needs")
        interface = socket.inet_aton(str(local) if local else "0.0.0.0")
        listening.setsockopt(socket.IPPROTO_IP, socket.IP_ADD_MEMBERSHIP, group.packed + interface)
    else:
        listening.setsockopt(socket.IPPROTO_IPV6, socket.IPV6_JOIN_GROUP, group.packed + struct.pack("@I", _interface(group)))
