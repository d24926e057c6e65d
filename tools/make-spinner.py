#!/usr/bin/env python3
"""Writes PebbleUI/icons/dual-spinner.gif: two arcs that turn against one another.

Usage: tools/make-spinner.py OUTPUT.gif

The picture is four times the size it is mostly shown at, so that the hard edges of GIF transparency
become soft when it is scaled down.
"""
import math
import struct
import sys

SIDE = 48
FRAMES = 24
HUNDREDTHS_A_FRAME = 4
PALETTE = [(0, 0, 0), (0x41, 0x98, 0xFF), (0x97, 0x97, 0x97), (0, 0, 0)]  # clear, outer arc, inner arc, unused
CODE_SIZE = 2


def arc(dx, dy, radius, width, start, sweep):
    if abs(math.hypot(dx, dy) - radius) > width / 2:
        return False
    return (math.atan2(dy, dx) - start) % (2 * math.pi) < sweep


def frame_pixels(turn):
    centre = (SIDE - 1) / 2
    pixels = bytearray()
    for y in range(SIDE):
        for x in range(SIDE):
            dx, dy = x - centre, y - centre
            if arc(dx, dy, 20, 6, turn, 1.5 * math.pi):
                pixels.append(1)
            elif arc(dx, dy, 10.5, 5, -turn, math.pi):
                pixels.append(2)
            else:
                pixels.append(0)
    return pixels


def lzw(pixels):
    clear, end = 1 << CODE_SIZE, (1 << CODE_SIZE) + 1
    out, bits, count = bytearray(), 0, 0

    def put(code, size):
        nonlocal bits, count
        bits |= code << count
        count += size
        while count >= 8:
            out.append(bits & 255)
            bits >>= 8
            count -= 8

    table = {bytes([i]): i for i in range(clear)}
    size, following = CODE_SIZE + 1, end + 1
    put(clear, size)
    word = b""
    for value in pixels:
        longer = word + bytes([value])
        if longer in table:
            word = longer
            continue
        put(table[word], size)
        if following < 4096:
            table[longer] = following
            if following == 1 << size:
                size += 1
            following += 1
        else:
            put(clear, size)
            table = {bytes([i]): i for i in range(clear)}
            size, following = CODE_SIZE + 1, end + 1
        word = bytes([value])
    put(table[word], size)
    put(end, size)
    if count:
        out.append(bits & 255)
    return bytes(out)


def blocks(data):
    return b"".join(bytes([len(data[i:i + 255])]) + data[i:i + 255] for i in range(0, len(data), 255)) + b"\0"


def main(path):
    gif = bytearray(b"GIF89a" + struct.pack("<HHBBB", SIDE, SIDE, 0x80 | (CODE_SIZE - 1), 0, 0))
    for colour in PALETTE:
        gif += bytes(colour)
    gif += b"\x21\xff\x0bNETSCAPE2.0\x03\x01\0\0\0"  # repeat for ever
    for i in range(FRAMES):
        gif += b"\x21\xf9\x04" + struct.pack("<BHB", 0x09, HUNDREDTHS_A_FRAME, 0) + b"\0"  # clear, then draw
        gif += b"\x2c" + struct.pack("<HHHHB", 0, 0, SIDE, SIDE, 0)
        gif += bytes([CODE_SIZE]) + blocks(lzw(frame_pixels(2 * math.pi * i / FRAMES)))
    gif += b"\x3b"
    with open(path, "wb") as file:
        file.write(gif)


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(sys.argv[1])
