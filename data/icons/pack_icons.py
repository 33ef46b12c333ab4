#!/usr/bin/python3
"""Packs PNG pictures into an .ico, or one PNG into a transparent .gif. Standard library only.

    pack_icons.py ico OUT.ico IN.png...          every size as its own entry
    pack_icons.py gif OUT.gif IN.png RRGGBB      RRGGBB: the ground that soft edges are laid on

It reads what rsvg-convert writes (8 bits, RGBA or RGB, not interlaced) and no other kind of PNG.
"""
import struct
import sys
import zlib


def read_png(path):
    """Returns width, height and rows of RGBA bytes."""
    data = open(path, "rb").read()
    if data[:8] != b"\x89PNG\r\n\x1a\n":
        sys.exit(f"{path}: no PNG")
    place, packed, head = 8, b"", None
    while place < len(data):
        length, kind = struct.unpack(">I4s", data[place:place + 8])
        body = data[place + 8:place + 8 + length]
        if kind == b"IHDR":
            head = struct.unpack(">IIBBBBB", body)
        elif kind == b"IDAT":
            packed += body
        place += length + 12
    width, height, depth, colour, _, _, interlaced = head
    if depth != 8 or colour not in (2, 6) or interlaced:
        sys.exit(f"{path}: only plain 8-bit RGB and RGBA are read")
    return width, height, unfilter(zlib.decompress(packed), width, height, 3 if colour == 2 else 4)


def unfilter(raw, width, height, step):
    rows, above, stride = [], bytes(width * step), width * step
    for y in range(height):
        start = y * (stride + 1)
        kind, line = raw[start], bytearray(raw[start + 1:start + 1 + stride])
        for x in range(stride):
            left = line[x - step] if x >= step else 0
            corner = above[x - step] if x >= step else 0
            line[x] = (line[x] + predict(kind, left, above[x], corner)) & 255
        above = bytes(line)
        rows.append(above if step == 4 else with_alpha(above))
    return rows


def predict(kind, left, up, corner):
    if kind == 4:
        guess = left + up - corner
        return min((left, up, corner), key=lambda v: abs(guess - v))
    return (0, left, up, (left + up) // 2)[kind]


def with_alpha(line):
    return b"".join(line[i:i + 3] + b"\xff" for i in range(0, len(line), 3))


def ico_bitmap(width, height, rows):
    """A 32-bit bitmap from the bottom row up, and the one-bit mask that older readers look at."""
    head = struct.pack("<IiiHHIIiiII", 40, width, height * 2, 1, 32, 0, 0, 0, 0, 0, 0)
    mask_stride = (width + 31) // 32 * 4
    pixels, mask = b"", b""
    for row in reversed(rows):
        bits = bytearray(mask_stride)
        for x in range(width):
            r, g, b, a = row[4 * x:4 * x + 4]
            pixels += bytes((b, g, r, a))
            if a == 0:
                bits[x // 8] |= 128 >> (x % 8)
        mask += bytes(bits)
    return head + pixels + mask


def write_ico(out, paths):
    """Up to 48 pixels as bitmaps, which every reader knows; larger ones stay PNG, which is smaller."""
    entries = []
    for path in paths:
        width, height, rows = read_png(path)
        body = ico_bitmap(width, height, rows) if width <= 48 else open(path, "rb").read()
        entries.append((width, height, body))
    place = 6 + 16 * len(entries)
    table, bodies = struct.pack("<HHH", 0, 1, len(entries)), b""
    for width, height, body in entries:
        table += struct.pack("<BBBBHHII", width & 255, height & 255, 0, 0, 1, 32, len(body), place)
        place += len(body)
        bodies += body
    open(out, "wb").write(table + bodies)


def laid_on(pixel, ground):
    """One colour for a soft edge, or None where less than a quarter of the pixel is covered."""
    alpha = pixel[3]
    if alpha < 64:
        return None
    return bytes((c * alpha + g * (255 - alpha) + 127) // 255 for c, g in zip(pixel, ground))


def write_gif(out, path, ground):
    width, height, rows = read_png(path)
    cells = [laid_on(row[4 * x:4 * x + 4], ground) for row in rows for x in range(width)]
    colours = sorted({c for c in cells if c})
    if len(colours) > 255:
        sys.exit(f"{path}: more than 255 colours")
    index = {c: i + 1 for i, c in enumerate(colours)}
    bits = max(2, len(colours).bit_length())
    table = bytes(ground) + b"".join(colours)
    table += bytes(3 * (1 << bits) - len(table))
    stream = lzw([index[c] if c else 0 for c in cells], bits)
    blocks = b"".join(bytes((len(stream[i:i + 255]),)) + stream[i:i + 255] for i in range(0, len(stream), 255))
    open(out, "wb").write(
        b"GIF89a" + struct.pack("<HHBBB", width, height, 0x80 | (bits - 1) << 4 | (bits - 1), 0, 0) + table
        + b"!\xf9\x04\x01\x00\x00\x00\x00"
        + b"," + struct.pack("<HHHHB", 0, 0, width, height, 0) + bytes((bits,)) + blocks + b"\x00;")


def lzw(cells, bits):
    clear, end = 1 << bits, (1 << bits) + 1
    codes, size, held, count, stream = {}, bits + 1, 0, 0, bytearray()

    def put(code):
        nonlocal held, count
        held |= code << count
        count += size
        while count >= 8:
            stream.append(held & 255)
            held >>= 8
            count -= 8

    def fresh():
        return {(i,): i for i in range(clear)}

    put(clear)
    codes, run = fresh(), ()
    following = end + 1
    for cell in cells:
        if run + (cell,) in codes:
            run += (cell,)
            continue
        put(codes[run])
        codes[run + (cell,)] = following
        if following == 1 << size:
            size += 1
        following += 1
        run = (cell,)
        if following == 4096:
            put(clear)
            codes, size, following = fresh(), bits + 1, end + 1
    put(codes[run])
    put(end)
    if count:
        stream.append(held & 255)
    return bytes(stream)


def main(arguments):
    if len(arguments) >= 3 and arguments[0] == "ico":
        write_ico(arguments[1], arguments[2:])
    elif len(arguments) == 4 and arguments[0] == "gif":
        write_gif(arguments[1], arguments[2], bytes.fromhex(arguments[3]))
    else:
        sys.exit(__doc__)


if __name__ == "__main__":
    main(sys.argv[1:])
