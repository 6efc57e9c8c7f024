"""Writers of the binary logs: zLog's .ZLO and both forms of RTCL's .LOG.

They lay out bytes and know no rule of the program. A text is str, or bytes where it holds what is
no character.
"""

import struct
from dataclasses import dataclass, field
from datetime import datetime, timedelta

DAY_ZERO = datetime(1899, 12, 30)

ZLO_RECORD_BYTES = 256

# Offset of the length byte, and the bytes behind it that zLog gives the text.
ZLO_TEXTS = {
    "call": (8, 12),
    "sent_number": (21, 30),
    "received_number": (52, 30),
    "operator": (160, 14),
    "memo": (175, 67),
}
ZLO_CONTEST_NAME = (175, 60)

ZLO_MODES = ["CW", "SSB", "FM", "AM", "RTTY"]
ZLO_BANDS = "1.9 3.5 7 10 14 18 21 24 28 50 144 430 1200 2400 5600 10G".split()

RTCL_V430 = 209
RTCL_V4 = 203

# Offset and size of each field of the later form.
RTCL_V430_FIELDS = {
    "kind": (0, 5), "band": (5, 4), "counter": (12, 4), "mode": (17, 5), "second_mode": (22, 5),
    "dupe": (27, 1), "time": (29, 8), "call": (37, 13), "sent": (50, 6), "sent_number": (56, 25),
    "sent_text": (81, 10), "received": (91, 6), "received_number": (97, 25),
    "received_text": (122, 10), "points": (132, 1), "multiplier": (134, 10),
    "second_multiplier": (144, 8), "third_text": (152, 6), "operator": (164, 6),
    "comment": (174, 20),
}  # fmt: skip
RTCL_V4_FIELDS = {
    "kind": (0, 5), "band": (5, 4), "counter": (9, 4), "mode": (14, 5), "second_mode": (19, 5),
    "dupe": (24, 1), "time": (26, 8), "call": (34, 13), "sent": (47, 6), "sent_number": (53, 25),
    "sent_text": (78, 10), "received": (88, 6), "received_number": (94, 25),
    "received_text": (119, 10), "points": (129, 1), "multiplier": (131, 6),
    "second_multiplier": (137, 6), "third_text": (143, 6), "operator": (155, 6),
    "comment": (165, 20),
}  # fmt: skip
RTCL_FIELDS = {RTCL_V430: RTCL_V430_FIELDS, RTCL_V4: RTCL_V4_FIELDS}

# Base in Hz, its counter, and the steps of the counter to a Hz, as a fraction. The counter knows
# frequencies up to 430 MHz; the bands above count in steps of 100, 1000 and 10000 Hz.
RTCL_COUNTERS = [
    (1_800_000, 997670912, 256, 1),
    (1_900_000, 1023270912, 256, 1),
    (3_500_000, 1253306368, 128, 1),
    (7_000_000, 1521741824, 64, 1),
    (10_000_000, 1662177280, 32, 1),
    (14_000_000, 1790177280, 32, 1),
    (18_000_000, 1898612736, 16, 1),
    (21_000_000, 1946612736, 16, 1),
    (24_000_000, 1994612736, 16, 1),
    (28_000_000, 2058612736, 16, 1),
    (29_000_000, 2074612736, 16, 1),
    (50_000_000, 2279048192, 8, 1),
    (51_000_000, 2287048192, 8, 1),
    (52_000_000, 2295048192, 8, 1),
    (53_000_000, 2303048192, 8, 1),
    (54_000_000, 2311048192, 8, 1),
    (144_000_000, 2703919104, 2, 1),
    (430_000_000, 3114354560, 1, 1),
    (1_200_000_000, 3521225472, 25, 100),
    (2_400_000_000, 3789660928, 125, 1000),
    (5_600_000_000, 4108096384, 625, 10000),
]

Text = str | bytes


def encoded(text: Text) -> bytes:
    return text.encode("cp932") if isinstance(text, str) else text


def days_of(when: datetime) -> float:
    return (when - DAY_ZERO) / timedelta(days=1)


@dataclass
class ZloContact:
    when: datetime
    call: Text
    band: int = 2  # the number of the table: 2 is 7 MHz
    mode: int = 0  # CW
    sent: int = 599
    received: int = 599
    sent_number: Text = "11M"
    received_number: Text = ""
    operator: Text = ""
    memo: Text = ""
    # Length bytes that are not the length of the text, by the name of the text.
    lengths: dict[str, int] = field(default_factory=dict)


def put_counted(
    record: bytearray, place: tuple[int, int], text: Text, length: int | None = None
) -> None:
    at, space = place
    raw = encoded(text)
    assert len(raw) <= space, f"{text!r} does not fit into {space} bytes"
    record[at] = len(raw) if length is None else length
    record[at + 1 : at + 1 + len(raw)] = raw


def zlo_header(contest_name: Text = "", length: int | None = None) -> bytes:
    record = bytearray(ZLO_RECORD_BYTES)
    put_counted(record, (8, 12), "HEADER")
    put_counted(record, ZLO_CONTEST_NAME, contest_name, length)
    return bytes(record)


def zlo_record(contact: ZloContact) -> bytes:
    record = bytearray(ZLO_RECORD_BYTES)
    struct.pack_into("<d", record, 0, days_of(contact.when))
    for name, place in ZLO_TEXTS.items():
        put_counted(record, place, getattr(contact, name), contact.lengths.get(name))
    struct.pack_into("<HH", record, 84, contact.sent, contact.received)
    record[92] = contact.mode
    record[93] = contact.band
    record[94] = 2  # power
    record[159] = 1  # points
    return bytes(record)


def zlo_log(contest_name: Text, contacts: list[ZloContact]) -> bytes:
    return zlo_header(contest_name) + b"".join(map(zlo_record, contacts))


@dataclass
class RtclContact:
    when: datetime
    call: Text
    band: Text = "7"
    counter: int = 0
    mode: Text = "CW"
    second_mode: Text = ""
    sent: Text = "599"
    received: Text = "599"
    sent_number: Text = "11M"
    received_number: Text = ""
    sent_text: Text = ""
    received_text: Text = ""
    operator: Text = ""
    comment: Text = ""
    multiplier: Text = ""
    second_multiplier: Text = ""
    third_text: Text = ""
    dupe: int = 0
    points: int = 1
    kind: Text = "0"


def rtcl_record(contact: RtclContact, record_bytes: int) -> bytes:
    record = bytearray(b" " * record_bytes)
    for name, (at, size) in RTCL_FIELDS[record_bytes].items():
        if name == "counter":
            raw = struct.pack("<I", contact.counter)
        elif name == "time":
            raw = struct.pack("<d", days_of(contact.when))
        elif name in ("dupe", "points"):
            raw = bytes([getattr(contact, name)])
        else:
            raw = encoded(getattr(contact, name)).ljust(size)
        assert len(raw) == size, f"{name} does not fit into {size} bytes"
        record[at : at + size] = raw
    return bytes(record)


def rtcl_log(record_bytes: int, contacts: list[RtclContact]) -> bytes:
    return b"".join(rtcl_record(contact, record_bytes) for contact in contacts)


def rtcl_counter(hertz: int) -> int:
    """The counter of a frequency; above 430 MHz of the step at or below it."""
    base, counter, steps, width = max(row for row in RTCL_COUNTERS if row[0] <= hertz)
    return counter + (hertz - base) * steps // width
