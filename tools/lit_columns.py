#!/usr/bin/env python3
"""Writes tests/map/lit_columns.txt: which columns of which rows of the map the Sun lights.

Reckoned apart from the program, on intervals rather than pixels: each strip of latitude is kept as an interval of
columns for the rows that it covers. Singles are rounded through struct, where a store or a single-precision step
asks for it. Python's round() takes halves to the even neighbour, as the program does.

    python3 tools/lit_columns.py > tests/map/lit_columns.txt
"""
import math
import struct

PI = 3.1415926536
MAPS = [(580, 284), (740, 380), (956, 510), (1182, 640)]
CASES = [(23.4393, -2.0), (-23.4393, 1.5), (0.0, 0.0), (-0.1, -14.2), (11.7, 16.4), (-17.3, 13.9), (0.00001, 7.4)]


def single(x):
    return struct.unpack("f", struct.pack("f", x))[0]


def tan_deg(x):
    return math.tan(x * PI / 180)


def arc_cos_deg(x):
    x = 0.99999 if x >= 1 else -0.99999 if x <= -1 else x
    return (math.atan(-x / math.sqrt(1 - x * x)) + 2 * math.atan(1)) * (180 / PI)


def strips(declination, width, height, shift):
    """The strips as (first row, row beyond the last, first column, column beyond the last)."""
    tan_declination = tan_deg(declination)
    if declination <= 0:
        start = min(single(declination + 90), 80.0)
        bands = [(start, 50, -0.4, 250), (50, -50, -0.75, 170), (-50, -70, -0.4, 250)]
    else:
        start = max(single(declination - 90), -70.0)
        bands = [(start, -50, 0.4, -250), (-50, 50, 0.75, -170), (50, 80, 0.4, -250)]
    for first, last, step, parts in bands:
        lines = round(single(height / parts))
        latitude = single(first)
        while latitude >= last if step < 0 else latitude <= last:
            top = round(single(height * single(single(80 - latitude) / 150)))
            half = single(181 - arc_cos_deg(tan_declination / tan_deg(single(90 - latitude))))
            right = single(single(single(single(180 + half) * width) / 360) - shift)
            left = single(single(single(single(180 - half) * width) / 360) - shift)
            rows = (top, top + lines) if lines > 0 else (top + lines, top)
            yield (*rows, round(left), round(left) + round(right - left))
            latitude = single(latitude + single(step))


def main():
    print("# Lit columns of the map, by tools/lit_columns.py.")
    print("# MapWidth declination equation-of-time/min: the case. Then, for every 7th row: row, and pairs of the first")
    print("# and the last lit column of each lit stretch.")
    for width, height in MAPS:
        for declination, minutes in CASES:
            print(f"case {width} {declination!r} {minutes!r}")
            shift = single(single(minutes) / 1440 * width)
            laid = list(strips(declination, width, height, shift))
            for row in range(0, height, 7):
                lit = [False] * width
                for top, beyond, left, right in laid:
                    if top <= row < beyond:
                        for column in range(max(left, 0), min(right, width)):
                            lit[column] = True
                ends = [c for c in range(width + 1) if (c < width and lit[c]) != (c > 0 and lit[c - 1])]
                print(row, *(e - (i % 2) for i, e in enumerate(ends)))


main()
