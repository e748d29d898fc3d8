#!/usr/bin/env python3
"""dark_box.py [--count] FILE.ppm [...]: prints the box of the dark pixels of
each binary PPM picture (left top right bottom, in pixels), or "none"; with
--count, how many dark pixels it has."""
import sys


def read_ppm(path):
    with open(path, "rb") as f:
        data = f.read()
    fields, pos = [], 0
    while len(fields) < 4:
        while data[pos:pos + 1].isspace():
            pos += 1
        if data[pos:pos + 1] == b"#":
            pos = data.index(b"\n", pos)
            continue
        end = pos
        while not data[end:end + 1].isspace():
            end += 1
        fields.append(data[pos:end])
        pos = end
    magic, width, height, _ = fields[0], int(fields[1]), int(fields[2]), fields[3]
    assert magic in (b"P6", b"P5"), magic
    channels = 3 if magic == b"P6" else 1
    return width, height, channels, data[pos + 1:]


def dark_box(path, threshold=128):
    width, height, channels, pixels = read_ppm(path)
    stride = width * channels
    left, top, right, bottom = width, height, -1, -1
    for y in range(height):
        row = pixels[y * stride:(y + 1) * stride]
        xs = [x for x in range(width) if row[x * channels] < threshold]
        if xs:
            left, right = min(left, xs[0]), max(right, xs[-1])
            top, bottom = min(top, y), y
    return None if right < 0 else (left, top, right, bottom)


def dark_count(path, threshold=128):
    width, height, channels, pixels = read_ppm(path)
    return sum(1 for i in range(0, width * height * channels, channels) if pixels[i] < threshold)


if __name__ == "__main__":
    if sys.argv[1] == "--count":
        for path in sys.argv[2:]:
            print(dark_count(path))
        sys.exit(0)
    for path in sys.argv[1:]:
        box = dark_box(path)
        print("none" if box is None else " ".join(map(str, box)))
