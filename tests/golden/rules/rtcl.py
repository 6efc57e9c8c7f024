"""The reader of RTCL's logs: unpacked to rtcl_tmp.txt, rewritten as .ALL text, and read as such.

A record is a row of fixed columns, texts among them filled with blanks. All files between the steps
are written and read back, since a text may hold what breaks a line or a field.
"""

import struct
from dataclasses import dataclass
from fractions import Fraction

from .disk import Drive, FieldReader, LineWriter, read_lines
from .names import RTCL_IN_ROOT, RTCL_UNPACKED, Names
from .numbers import time_of_double
from .options import Options
from .sjis import decode, len_mbcs, mid_mbcs, trim
from .text_logs import DUPE_MARK, read_all_lines


@dataclass(frozen=True)
class Layout:
    record_bytes: int
    fields: dict[str, tuple[int, int]]  # offset and size


# Up to the second multiplier the later form differs by three more bytes behind the band.
LAYOUTS = {
    "log_v430": Layout(
        209,
        {
            "kind": (0, 5), "band": (5, 4), "counter": (12, 4), "mode": (17, 5),
            "second mode": (22, 5), "dupe": (27, 1), "time": (29, 8), "call": (37, 13),
            "sent": (50, 6), "sent number": (56, 25), "sent text": (81, 10), "received": (91, 6),
            "received number": (97, 25), "received text": (122, 10), "points": (132, 1),
            "multiplier": (134, 10), "second multiplier": (144, 8), "third text": (152, 6),
            "operator": (164, 6), "comment": (174, 20),
        },
    ),
    "log_v4": Layout(
        203,
        {
            "kind": (0, 5), "band": (5, 4), "counter": (9, 4), "mode": (14, 5),
            "second mode": (19, 5), "dupe": (24, 1), "time": (26, 8), "call": (34, 13),
            "sent": (47, 6), "sent number": (53, 25), "sent text": (78, 10), "received": (88, 6),
            "received number": (94, 25), "received text": (119, 10), "points": (129, 1),
            "multiplier": (131, 6), "second multiplier": (137, 6), "third text": (143, 6),
            "operator": (155, 6), "comment": (165, 20),
        },
    ),
}  # fmt: skip

NO_CONTACT = "QTC"
UNPACKED_FIELDS = 23

# Threshold of the counter, base in Hz, divider. The last row has no upper end.
FREQUENCIES = [
    (997670912, 1800000, 256),
    (1023270912, 1900000, 256),
    (1253306368, 3500000, 128),
    (1521741824, 7000000, 64),
    (1662177280, 10000000, 32),
    (1790177280, 14000000, 32),
    (1898612736, 18000000, 16),
    (1946612736, 21000000, 16),
    (1994612736, 24000000, 16),
    (2058612736, 28000000, 16),
    (2074612736, 29000000, 16),
    (2279048192, 50000000, 8),
    (2287048192, 51000000, 8),
    (2295048192, 52000000, 8),
    (2303048192, 53000000, 8),
    (2311048192, 54000000, 8),
    (2703919104, 144000000, 2),
    (3114354560, 430000000, 1),
    (3521225472, 1200000000, 25),
    (3789660928, 2400000000, 125),
    (4108096384, 5600000000, 625),
]
BASES_OF_BANDS = {
    band: int(float(band) * 1_000_000)
    for band in "1.8 1.9 3.5 7 10 14 18 21 24 28 29 50 144 430 1200 2400 5600".split()
}
STRETCHED = {"1200": 100, "2400": 1000, "5600": 10000}

HEADING = "zLog for Windows   (rtcl.log to zlog.all)    by Morvessa 5.30"
MODES = {"RTTY": "RTY", "PSK31": "PSK", "USB": "SSB", "LSB": "SSB", "CW": "CW ", "FM": "FM "}


def kind_of(raw: bytes) -> str | None:
    return next((kind for kind in LAYOUTS if accepts(kind, raw)), None)


def accepts(kind: str, raw: bytes) -> bool:
    return raw[:1] == b"0" and len(raw) % LAYOUTS[kind].record_bytes == 0


def read_rtcl(files: Drive, kind: str, raw: bytes, names: Names, options: Options) -> None:
    unpack(LAYOUTS[kind], raw, LineWriter(files, RTCL_UNPACKED))
    write_all_text(files, names)
    names.use_as_input(names.rtcl_text)
    read_all_lines(read_lines(files[names.rtcl_text]), options, LineWriter(files, names.log_lines))


def unpack(layout: Layout, raw: bytes, out: LineWriter) -> None:
    counter = FrequencyCounter()
    for at in range(0, len(raw), layout.record_bytes):
        record = raw[at : at + layout.record_bytes]
        bytes_of = {
            name: record[offset : offset + size] for name, (offset, size) in layout.fields.items()
        }
        text_of = {name: trim(decode(raw_field)) for name, raw_field in bytes_of.items()}
        if text_of["kind"].startswith(NO_CONTACT):
            continue
        time = time_of_double(bytes_of["time"])
        hertz = counter.hertz(struct.unpack("<I", bytes_of["counter"])[0], text_of["band"])
        out.write_quoted([
            text_of["kind"], text_of["band"], time.strftime("%Y/%m/%d"), time.strftime("%H%M%S"),
            text_of["band"], in_kilohertz_text(hertz), str(rounded(hertz / 1000)),
            text_of["mode"], text_of["second mode"], text_of["call"],
            text_of["sent"], text_of["sent number"], text_of["sent text"],
            text_of["received"], text_of["received number"], text_of["received text"],
            str(number_of(bytes_of["points"])),
            text_of["multiplier"], text_of["second multiplier"], text_of["third text"],
            DUPE_MARK + " " if number_of(bytes_of["dupe"]) > 0 else "",
            text_of["operator"], text_of["comment"],
        ])  # fmt: skip


def number_of(raw: bytes) -> int:
    """The decimal text of a byte, read as hexadecimal: 10 is 16."""
    return int(str(raw[0]), 16)


class FrequencyCounter:
    """What a counter and a band say of the frequency. Without a row the base before stays."""

    def __init__(self) -> None:
        self._base = 0

    def hertz(self, counter: int, band: str) -> Fraction:
        offset = Fraction(0)
        if counter == 0:
            if band not in BASES_OF_BANDS:
                raise ValueError(f"the rules leave open the frequency of the band {band}")
            self._base = BASES_OF_BANDS[band]
        else:
            ends = [threshold for threshold, _, _ in FREQUENCIES[1:]] + [2**32 + 1]
            for (threshold, base, divider), end in zip(FREQUENCIES, ends, strict=True):
                if threshold - 1 <= counter <= end - 1:
                    self._base = base
                    offset = Fraction(max(counter - threshold, 0), divider)
                    break
        return self._base + offset * STRETCHED.get(band, 1)


def rounded(value: Fraction) -> int:
    return (value + Fraction(1, 2)).__floor__()


def in_kilohertz_text(hertz: Fraction) -> str:
    """Kilohertz with three digits behind the point. Nothing behind rtcl_tmp.txt reads it."""
    kilohertz, rest = divmod(rounded(hertz), 1000)
    return f"{kilohertz:7d}.{rest:03d}"


def write_all_text(files: Drive, names: Names) -> None:
    outputs = [
        LineWriter(files, path) for path in (RTCL_IN_ROOT, names.rtcl_text, names.rtcl_beside)
    ]
    for out in outputs:
        out.write_line(HEADING)
    mode = ""
    contacts = FieldReader(files, RTCL_UNPACKED)
    while not contacts.at_end():
        fields = contacts.read(UNPACKED_FIELDS)
        mode = MODES.get(fields[7], mode)
        for out in outputs:
            out.write_line(all_line(fields, mode))


def all_line(fields: list[str], mode: str) -> str:
    (_, _, date, time, band, _, kilohertz, _, _, call, sent, sent_number, _, received,
     received_number, _, points, multiplier, second_multiplier, _, dupe, operator,
     comment) = fields  # fmt: skip
    if dupe == DUPE_MARK + " ":
        points = "0"
    memo = f"%%{operator}%% " if operator != "" else ""
    memo += dupe
    if kilohertz != "":
        memo += f"({kilohertz})"
    if comment != "":
        memo += " " + comment
    return (
        f"{date} {time[:2]}:{time[2:4]} "
        + column(call, 13)
        + column(sent, 4)
        + column(sent_number, 8)
        + column(received, 4)
        + column(received_number, 7) + " "
        + column(multiplier or "-", 5) + " "
        + column(second_multiplier or "-", 5) + " "
        + column(band, 5)
        + column(mode, 5)
        + column(points + "   ", 4)
        + memo
    )  # fmt: skip


def column(text: str, width: int) -> str:
    """A column keeps its width: what a character that does not fit leaves is filled."""
    cut = mid_mbcs(text, 1, width)
    return cut + " " * (width - len_mbcs(cut))
