"""Bytes of the small file formats that the sample PC holds. Same arguments, same bytes."""

import hashlib
import struct

CRLF = "\r\n"
FILETIME_2001_03 = 0x01C0A9A6D5B1C000  # early March 2001; no file needs its own time


def text(*lines):
    """A DOS text file in the PC's code page, every line ended."""
    return (CRLF.join(lines) + CRLF).encode("cp1252")


def unix_text(*lines):
    return ("\n".join(lines) + "\n").encode("cp1252")


def filler(size, seed):
    """`size` bytes that look like data of a program and depend on the seed alone."""
    block = b""
    count = 0
    while len(block) < size:
        block += hashlib.sha256(f"{seed}/{count}".encode()).digest()
        count += 1
    return block[:size]


def link(target):
    """A shortcut: the fixed header, a link info with the local path, no item list."""
    path = target.encode("cp1252") + b"\0"
    header = struct.pack("<I16sII3QIIIHHII", 0x4C, bytes.fromhex("0114020000000000c000000000000046"),
                         0x02, 0x20, FILETIME_2001_03, FILETIME_2001_03, FILETIME_2001_03,
                         0, 0, 1, 0, 0, 0, 0)
    volume = struct.pack("<IIII", 17, 3, 0x1A2B3C4D, 16) + b"\0"
    path_at = 28 + len(volume)
    suffix_at = path_at + len(path)
    info = struct.pack("<IIIIIII", suffix_at + 1, 28, 1, 28, path_at, 0, suffix_at) + volume + path + b"\0"
    return header + info + struct.pack("<I", 0)


def picture(width, height, seed):
    """A Windows bitmap, 24 bit, a soft ramp in a colour of its own."""
    red, green, blue = filler(3, seed)
    rows = b""
    for y in range(height):
        row = b"".join(bytes(((blue + x) & 255, (green + y) & 255, (red + x + y) & 255)) for x in range(width))
        rows += row + b"\0" * (-len(row) % 4)
    header = struct.pack("<2sIHHI", b"BM", 54 + len(rows), 0, 0, 54)
    return header + struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, len(rows), 2835, 2835, 0, 0) + rows


def gif(colour):
    """A picture of one pixel, as cached pages are full of."""
    return (b"GIF89a\x01\x00\x01\x00\x80\x00\x00" + bytes(colour) + b"\xff\xff\xff,\x00\x00\x00\x00"
            b"\x01\x00\x01\x00\x00\x02\x02D\x01\x00;")


def sound(samples):
    """A wave file of 8-bit mono at 8000 Hz: a saw tooth."""
    data = bytes((n * 7) & 255 for n in range(samples))
    return (struct.pack("<4sI8sIHHIIHH4sI", b"RIFF", 36 + len(data), b"WAVEfmt ", 16, 1, 1, 8000, 8000, 1, 8,
                        b"data", len(data)) + data)


def recycle_index(drive_number, entries):
    """INFO2 of a recycle bin: a head of 20 bytes, then 280 bytes for each (number, path, size)."""
    head = struct.pack("<IIIII", 5, len(entries), len(entries), 280, 0)
    return head + b"".join(struct.pack("<260sIIQI", path.encode("cp1252"), number, drive_number,
                                       FILETIME_2001_03, size) for number, path, size in entries)


def _url_record(tag, address, file_name):
    """One record of two blocks: the address at offset 104, the file name behind it, the rest the
    browser's own fill bytes. Pieces that readers skip hold nothing printable."""
    place = address.encode("cp1252") + b"\0"
    name = file_name.encode("cp1252") + b"\0"
    head = bytearray(104)
    struct.pack_into("<4sIQQ", head, 0, tag.encode(), 2, FILETIME_2001_03, FILETIME_2001_03)
    struct.pack_into("<III", head, 52, 104, 0, 104 + len(place))
    record = bytes(head) + place + name
    assert len(record) <= 256, address
    return (record + b"\x0d\xf0\xad\x0b" * 64)[:256]


def url_index(records, late=()):
    """index.dat of the browser: head, hash table, and from 20480 on one record of 256 bytes for each
    (tag, address, file name). A `late` record starts 128 bytes off the row of records."""
    head = bytearray(20480)
    head[0:28] = b"Client UrlCache MMF Ver 5.2\0"
    struct.pack_into("<4sI", head, 16384, b"HASH", 32)
    body = b"".join(_url_record(*record) for record in records)
    for address, file_name in late:
        body += b"REDR".ljust(128, b"\0") + _url_record("URL ", address, file_name) + b"\0" * 128
    struct.pack_into("<II", head, 28, len(head) + len(body), 16384)
    return bytes(head) + body


def profile_registry(*strings):
    """The profile registry: strings between NUL bytes, a last one without its NUL."""
    head = struct.pack("<IHHI", 0x76644441, 1, 2, 0) + b"\0"
    return head + b"\0\0\x01\0".join(s.encode("cp1252") for s in strings) + b"\0\x20\0\0tail"


def _reg_quoted(string):
    return '"' + string.replace("\\", "\\\\").replace('"', '\\"') + '"'


def _reg_value(name, data):
    head = "@=" if name == "" else _reg_quoted(name) + "="
    if isinstance(data, str):
        return head + _reg_quoted(data)
    if isinstance(data, int):
        return f"{head}dword:{data:08x}"
    line = head + "hex:"
    lines = []
    for position, byte in enumerate(data):
        if len(line) > 76:
            lines.append(line + "\\")
            line = "  "
        line += f"{byte:02x}" + ("," if position + 1 < len(data) else "")
    return CRLF.join(lines + [line])


def registry_text(keys):
    """A REGEDIT4 export of {key path: {value name: text, number or bytes}}, parents included, sorted."""
    every = dict(keys)
    for path in keys:
        while path.count("\\") > 1:
            path = path.rpartition("\\")[0]
            every.setdefault(path, {})
    out = "REGEDIT4" + CRLF
    for path in sorted(every, key=lambda path: path.upper().split("\\")):
        out += CRLF + f"[{path}]" + CRLF
        for name in sorted(every[path], key=str.upper):
            out += _reg_value(name, every[path][name]) + CRLF
    return (out + CRLF).encode("cp1252")
