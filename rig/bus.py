"""A private session bus, and just enough of its wire format to call a method without starting a program."""

import os
import socket
import struct

from .child import Child
from .waiting import wait_for

# No folder of services: a call to a name that nobody owns fails instead of starting an installed program.
_CONFIGURATION = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path={socket}</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""


class SessionBus(Child):
    """A message bus of its own, listening in `folder`."""

    def __init__(self, folder, env):
        self.socket = os.path.join(folder, "bus")
        configuration = os.path.join(folder, "session.conf")
        with open(configuration, "w", encoding="utf-8") as file:
            file.write(_CONFIGURATION.format(socket=self.socket))
        super().__init__(["dbus-daemon", f"--config-file={configuration}", "--nofork", "--nopidfile"], env)
        wait_for(lambda: os.path.exists(self.socket), what="the session bus")

    @property
    def address(self):
        return f"unix:path={self.socket}"


class BusError(Exception):
    """The bus or the called program answered with an error."""


def _pad(data, size):
    return data + b"\0" * (-len(data) % size)


def _string(text):
    data = text.encode()
    return struct.pack("<I", len(data)) + data + b"\0"


def _strings(words):
    body = b""
    for word in words:
        body = _pad(body, 4) + _string(word)
    return struct.pack("<I", len(body)) + body


def _field(code, kind, text):
    value = bytes([len(text)]) + text.encode() + b"\0" if kind == "g" else _string(text)
    return bytes([code, 1, ord(kind), 0]) + value


class BusConnection:
    """One connection to a session bus; calls block for at most `limit` seconds."""

    def __init__(self, path, limit=10.0):
        self._socket = socket.socket(socket.AF_UNIX)
        self._socket.settimeout(limit)
        self._socket.connect(path)
        self._serial = 0
        self._input = b""
        self._socket.sendall(b"\0AUTH EXTERNAL " + str(os.getuid()).encode().hex().encode() + b"\r\n")
        if not self._read_line().startswith(b"OK"):
            raise BusError("the bus refused the connection")
        self._socket.sendall(b"BEGIN\r\n")
        self.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "Hello")

    def close(self):
        self._socket.close()

    def call(self, name, path, interface, member, words=None):
        """The reply's body of a method that takes nothing or one array of strings."""
        self._serial += 1
        body = b"" if words is None else _strings(words)
        fields = b""
        for field in [(1, "o", path), (2, "s", interface), (3, "s", member), (6, "s", name)]:
            fields = _pad(fields, 8) + _field(*field)
        if words is not None:
            fields = _pad(fields, 8) + _field(8, "g", "as")
        header = struct.pack("<cBBBIII", b"l", 1, 0, 1, len(body), self._serial, len(fields))
        self._socket.sendall(_pad(header + fields, 8) + body)
        return self._wait_reply(self._serial)

    def _wait_reply(self, serial):
        while True:
            kind, answered, body = self._read_message()
            if answered != serial:
                continue
            if kind == 3:
                raise BusError(_text_at(body, 0)[0] if body else "no reason given")
            return body

    def _read_message(self):
        head = self._read(16)
        kind, body_size, fields_size = head[1], *struct.unpack_from("<I4xI", head, 4)
        rest = self._read((fields_size + 7) // 8 * 8 + body_size)
        return kind, _reply_serial(rest[:fields_size]), rest[len(rest) - body_size:]

    def _read(self, count):
        while len(self._input) < count:
            data = self._socket.recv(1 << 16)
            if not data:
                raise BusError("the bus has gone")
            self._input += data
        data, self._input = self._input[:count], self._input[count:]
        return data

    def _read_line(self):
        line = b""
        while not line.endswith(b"\r\n"):
            line += self._read(1)
        return line


def _reply_serial(fields):
    """The number of the call that a message answers; None for a signal."""
    at = 0
    while at < len(fields):
        at += -at % 8
        code, kind = fields[at], chr(fields[at + 2])
        at += 4
        if kind == "g":
            at += fields[at] + 2
            continue
        at += -at % 4
        number = struct.unpack_from("<I", fields, at)[0]
        if code == 5:
            return number
        at += 4 if kind == "u" else 4 + number + 1
    return None


def _text_at(body, at):
    at += -at % 4
    size = struct.unpack_from("<I", body, at)[0]
    return body[at + 4:at + 4 + size].decode(), at + 4 + size + 1


def parse_run_reply(body):
    """(status, out, err) of the program's method Run."""
    status = struct.unpack_from("<i", body, 0)[0]
    out, at = _text_at(body, 4)
    return status, out, _text_at(body, at)[0]
