#!/usr/bin/env python3
"""Writes one set of many invented contacts as logs of every kind, into a folder.

usage: make_formats.py CONTACTS FOLDER
"""

import datetime
import random
import struct
import sys

LETTERS = "ABCDEFGHIJKLMNOPQRSTUVWXYZ"
# Band, its ADIF name, a frequency in kHz, its place in a .ZLO, start and divider of RTCL's counter.
BANDS = (
    ("3.5", "80M", 3510, 1, 1253306368, 128, 3500),
    ("7", "40M", 7012, 2, 1521741824, 64, 7000),
    ("14", "20M", 14012, 4, 1790177280, 32, 14000),
    ("21", "15M", 21025, 6, 1946612736, 16, 21000),
    ("50", "6M", 50123, 9, 2279048192, 8, 50000),
    ("144", "2M", 144123, 10, 2703919104, 2, 144000),
)
MODES = (("CW ", "CW", 0, "CW"), ("SSB", "PH", 1, "USB"), ("FM ", "FM", 2, "FM"))
DAY_ONE = datetime.datetime(1899, 12, 30)


def counted(text: str, space: int) -> bytes:
    data = text.encode("cp932")[:space]
    return bytes([len(data)]) + data.ljust(space)


def padded(text: str, size: int) -> bytes:
    return text.encode("cp932")[:size].ljust(size)


class Contact:
    def __init__(self, number: int, choose: random.Random) -> None:
        self.time = datetime.datetime(2025, 1, 1) + datetime.timedelta(minutes=number // 20)
        self.call = "J" + choose.choice("AEFGHIJKLMNOPQR") + choose.choice("0123456789")
        self.call += "".join(choose.choice(LETTERS) for _ in range(3))
        if choose.random() < 0.05:
            self.call += "/" + choose.choice("0123456789")
        self.band, self.adif_band, kilohertz, self.zlo_band, self.threshold, self.divider, edge = (
            choose.choice(BANDS)
        )
        self.kilohertz = kilohertz + choose.randrange(30)
        self.counter = self.threshold + (self.kilohertz - edge) * 1000 * self.divider
        self.mode, self.cabrillo_mode, self.zlo_mode, self.rtcl_mode = choose.choice(MODES)
        self.received = choose.choice(("1012", "13H", "104M", "2107", "11P"))
        self.operator = "JA1ZZ" + choose.choice("ABC")
        self.memo = choose.choice((" 移動運用", " ｶﾅ ﾒﾓ", " QRP 5W")) if choose.random() < 0.1 else ""
        self.days = (self.time - DAY_ONE) / datetime.timedelta(days=1)

    def all(self) -> str:
        return (
            f"{self.time:%Y/%m/%d %H:%M} {self.call:12} 599 11M     599 {self.received:8}-     -     "
            f"{self.band:4} {self.mode:3}  1  %%{self.operator}%%{self.memo} ({self.kilohertz})"
        )

    def txt(self) -> str:
        line = f"{self.time:%m  %d %H%M} {self.call:11}599{'11M':10}599{self.received:7}{'-':>10} "
        return f"{line:57}{self.band:>4}  {self.mode:3} 1".ljust(72) + (
            f"%%{self.operator}%%{self.memo} ({self.kilohertz})"
        )

    def cabrillo(self) -> str:
        return (
            f"QSO: {self.kilohertz:6} {self.cabrillo_mode} {self.time:%Y-%m-%d %H%M} JA1ZZZ"
            f"        599 11M    {self.call:13} 599 {self.received}"
        )

    def adif(self) -> str:
        tags = {
            "CALL": self.call,
            "QSO_DATE": f"{self.time:%Y%m%d}",
            "TIME_ON": f"{self.time:%H%M%S}",
            "BAND": self.adif_band,
            "STATION_CALLSIGN": "JA1ZZZ",
            "FREQ": f"{self.kilohertz / 1000:.5f}",
            "CONTEST_ID": "ACAG",
            "FREQ_RX": f"{self.kilohertz / 1000:.5f}",
            "MODE": self.mode.strip(),
            "RST_RCVD": "599",
            "RST_SENT": "599",
            "OPERATOR": self.operator,
            "STX": "1",
            "APP_N1MM_EXCHANGE1": self.received,
            "APP_N1MM_POINTS": "1",
        }
        return "".join(f"<{name}:{len(value)}>{value} " for name, value in tags.items()) + "<EOR>"

    def zlo(self) -> bytes:
        record = struct.pack("<d", self.days) + counted(self.call, 12) + counted("11M", 30)
        record += counted(self.received, 31) + struct.pack("<HH4x", 599, 599)
        record += bytes([self.zlo_mode, self.zlo_band, 1]) + counted("", 30) + counted("", 30)
        record += bytes([0, 0, 1]) + counted(self.operator, 14)
        return (record + counted(f"{self.memo} ({self.kilohertz})", 67)).ljust(256, b"\0")

    def rtcl(self, new: bool) -> bytes:
        record = padded("00001", 5) + padded(self.band, 4) + (b"   " if new else b"")
        record += struct.pack("<Ix", self.counter) + padded(self.rtcl_mode, 5) + padded("", 5)
        record += struct.pack("<xxd", self.days) + padded(self.call, 13)
        record += padded("599", 6) + padded("11M", 25) + padded("", 10)
        record += padded("599", 6) + padded(self.received, 25) + padded("", 10) + b"\1\0"
        record += padded("", 10 if new else 6) + padded("", 8 if new else 6) + padded("", 6)
        record += padded("", 6) + padded(self.operator, 6) + padded("", 4) + padded(self.memo, 20)
        return record.ljust(209 if new else 203)


def main() -> None:
    count, folder = int(sys.argv[1]), sys.argv[2]
    choose = random.Random(1)
    contacts = [Contact(number, choose) for number in range(count)]

    def write(name: str, heading: str, line_of) -> None:
        with open(f"{folder}/{name}", "w", encoding="cp932", newline="") as log:
            log.write(heading + "\r\n")
            log.writelines(line_of(contact) + "\r\n" for contact in contacts)

    def write_binary(name: str, heading: bytes, record_of) -> None:
        with open(f"{folder}/{name}", "wb") as log:
            log.write(heading)
            log.writelines(record_of(contact) for contact in contacts)

    write("log.all", "zLog for Windows ", Contact.all)
    write("log.txt", "mon day time  callsign", Contact.txt)
    write("log.cbr", "START-OF-LOG: 3.0", Contact.cabrillo)
    write("log.adi", "ADIF <EOH>", Contact.adif)
    write_binary("log.zlo", bytes(256), Contact.zlo)
    write_binary("old.log", b"", lambda contact: contact.rtcl(False))
    write_binary("new.log", b"", lambda contact: contact.rtcl(True))


if __name__ == "__main__":
    main()
