#!/usr/bin/env python3
"""Writes a log book in the log book's own table form, of many invented contacts.

usage: make_log_book.py CONTACTS FILE
"""

import random
import struct
import sys

LAYOUT = (
    ("CALLS", 6), ("IGN", 14), ("DATE", 4), ("TIME", 2), ("CODE", 6), ("GL", 6), ("QSL", 3),
    ("FLAG", 2), ("HIS", 3), ("MY", 3), ("FREQ", 7), ("MODE", 4), ("NAME", 12), ("QTH", 28),
    ("RMK1", 54), ("RMK2", 54),
)  # fmt: skip
LETTERS = b"ABCDEFGHIJKLMNOPQRSTUVWXYZ"
BANDS = (b"3.5    ", b"7      ", b"14     ", b"21.2   ", b"50.15  ", b"430    ")
MODES = (b"CW  ", b"SSB ", b"FM  ", b"RTY ")
MARKS = (b"J* ", b"J**", b"N  ", b"J  ", b"B**")


def header(records: int) -> bytes:
    start = struct.pack("<B3sIHH20x", 3, bytes([125, 11, 20]), records,
                        32 * (len(LAYOUT) + 1) + 1, 1 + sum(width for _, width in LAYOUT))
    columns = b"".join(struct.pack("<11sc4xB15x", name.encode(), b"C", width)
                       for name, width in LAYOUT)
    return start + columns + b"\r"


def record(choose: random.Random) -> bytes:
    call = bytes([74, choose.choice(b"AEFGHIJKLMNOPQR"), choose.choice(b"0123456789"),
                  *choose.choices(LETTERS, k=3)])
    portable = b"/%d" % choose.randrange(10) if choose.random() < 0.05 else b""
    year = choose.randrange(1990, 2026)
    date = bytes([year // 100, year % 100, choose.randrange(1, 13), choose.randrange(1, 29)])
    time = bytes([choose.randrange(24), choose.randrange(60)])
    return b" " + b"".join((
        call, portable.ljust(14), date, time, b"100101", b"PM95TK", choose.choice(MARKS), bytes(2),
        b"599", b"599", choose.choice(BANDS), choose.choice(MODES), "山田 太郎".encode("cp932").ljust(12),
        "東京都千代田区".encode("cp932").ljust(28), b" " * 108,
    ))  # fmt: skip


def main() -> None:
    count, file = int(sys.argv[1]), sys.argv[2]
    choose = random.Random(1)
    with open(file, "wb") as book:
        book.write(header(count))
        for _ in range(count):
            book.write(record(choose))
        book.write(b"\x1a")


if __name__ == "__main__":
    main()
