#!/usr/bin/env python3
"""Writes the binary logs of the cases anew, always the same to the byte. All calls are invented.

Each function is a log: its name is the case's, with "_" for "-".
"""

import sys
from collections.abc import Callable
from datetime import datetime, timedelta
from pathlib import Path

sys.dont_write_bytecode = True

from binary_logs import (  # noqa: E402
    RTCL_V4,
    RTCL_V430,
    RtclContact,
    ZloContact,
    rtcl_counter,
    rtcl_log,
    zlo_header,
    zlo_log,
    zlo_record,
)

CASES = Path(__file__).resolve().parent / "cases"

LOGS: dict[str, tuple[str, Callable[[], bytes]]] = {}


def log(path: str):
    """Notes a function as the maker of `path` in the input of the case with its name."""

    def note(make: Callable[[], bytes]) -> Callable[[], bytes]:
        LOGS[make.__name__.replace("_", "-")] = (path, make)
        return make

    return note


def at(hour: int, minute: int, second: float = 0) -> datetime:
    return datetime(2025, 4, 27, hour, minute) + timedelta(seconds=second)


def calls(area: str, count: int) -> list[str]:
    """JA1ZZA, JA1ZZB and so on."""
    return [f"J{'AEFGHIJKLMNOPQR'[n % 15]}{area}ZZ{chr(ord('A') + n % 26)}" for n in range(count)]


def zlo_memos(memos: list[str | bytes]) -> bytes:
    """A contact for each memo, every one on another band so that the frequency shows its source."""
    return zlo_log("", [
        ZloContact(at(9, n), call, band=n % 15, received_number="13H", memo=memo)
        for n, (call, memo) in enumerate(zip(calls("1", len(memos)), memos, strict=True))
    ])  # fmt: skip


# zLog


@log("log/x.zlo")
def zlo_defaults() -> bytes:
    return zlo_log("西部市郡区コンテスト", [
        ZloContact(at(9, 0), "JA1ZZA", received_number="13H", operator="JA1ZZZ", memo="FB (7012)"),
        ZloContact(at(9, 1), "JR6ZZB/P", band=5, received_number="47M", operator="JH1ZZY"),
        ZloContact(at(9, 2), "KH2/JA3ZZC", 6, 1, 59, 57, "11M", "25L", "", "ｱﾝﾃﾅ"),
        ZloContact(at(9, 3), "DL1ZZD", 4, 4, received_number="001"),
    ])  # fmt: skip


@log("log/x.zlo")
def zlo_bands() -> bytes:
    bands = [255, *range(16), 16]
    return zlo_log("", [
        ZloContact(at(9, n), call, band=band, received_number="13H")
        for n, (call, band) in enumerate(zip(calls("3", len(bands)), bands, strict=True))
    ])  # fmt: skip


@log("log/x.zlo")
def zlo_modes() -> bytes:
    modes = [6, 0, 1, 2, 3, 4, 5, 6, 255, 0]
    return zlo_log("", [
        ZloContact(at(9, n), call, mode=mode, received_number="13H")
        for n, (call, mode) in enumerate(zip(calls("3", len(modes)), modes, strict=True))
    ])  # fmt: skip


@log("log/x.zlo")
def zlo_frequencies() -> bytes:
    return zlo_memos([
        "(7012)", "TEST(14012)ABC", "(7.012)", "(1296012)", "(14012.5)", "(QRP)", "()", "AB () C",
        "no frequency", "(21050) (21050) twice", "(21050) other (21060)", "() (28050)", "( 3510 )",
        " blanks (50250) ",
    ])  # fmt: skip


@log("log/x.zlo")
def zlo_frequency_zero() -> bytes:
    return zlo_memos(["(0)", "a (0) (7012) b", "(7012) (0)", "(00)", "0)"])


@log("log/x.zlo")
def zlo_frequency_brackets() -> bytes:
    return zlo_memos(["(7012) ok", ") (7013", "a) b (7014) c", "(7015 d", "((7016)", "7017)"])


@log("log/x.zlo")
def zlo_frequency_behind_double_bytes() -> bytes:
    return zlo_memos(["移動(7012)運用", "能登（7013）", "表(ソ)表", "ﾎﾟｰ(7014)ﾙ"])


@log("log/x.zlo")
def zlo_frequency_not_asked() -> bytes:
    return zlo_memos(["(7012) memo", "(0)", "() x"])


@log("log/x.zlo")
def zlo_lengths() -> bytes:
    return zlo_log("", [
        ZloContact(at(9, 0), "JA1ZZA", received_number="123456789ABC", operator="JA1ZZZ",
                   memo="A"),
        ZloContact(at(9, 1), "JA1ZZBXX", received_number="1234", operator="JA1ZZZ",
                   memo="KEPT GONE",
                   lengths={"call": 6, "received_number": 2, "operator": 3, "memo": 4}),
        ZloContact(at(9, 2), "JA1ZZCXXXXXX", received_number="1234567890",
                   operator="ABCDEFGHIJKLMN", memo="M" * 67,
                   lengths={"call": 200, "received_number": 255, "operator": 15, "memo": 68}),
        ZloContact(at(9, 3), "JA1ZZD", received_number="25", operator="JA1ZZZ", memo="GONE",
                   lengths={"received_number": 0, "operator": 0, "memo": 0}),
        ZloContact(at(9, 4), "JA1ZZE", received_number="東京都", operator="無線太郎", memo="移動運用",
                   lengths={"received_number": 5, "operator": 5, "memo": 7}),
        ZloContact(at(9, 5), "JA1ZZF", received_number="25", memo="表" * 33),
    ])  # fmt: skip


@log("log/x.zlo")
def zlo_double_byte_texts() -> bytes:
    return zlo_log("", [
        ZloContact(at(9, 0), "JA1ZZA", received_number="13ソ", operator="ソ表示", memo="能登 表彰局"),
        ZloContact(at(9, 1), "JA1ZZB", received_number="ﾀﾛｳ", operator="ﾀﾛｳ", memo="ﾓｰﾋﾞﾙ (7012)"),
        ZloContact(at(9, 2), "JA1ZZC", received_number="13", operator=b"\x81",
                   memo=b"A\x80\xfd\xff"),
        ZloContact(at(9, 3), "JA1ZZD", received_number="13", operator="１２３", memo="ｱ（7012）"),
    ])  # fmt: skip


@log("log/X.ZLO")
def zlo_capital_extension() -> bytes:
    return zlo_memos(["(7012)", ""])


def zlo_operators() -> bytes:
    return zlo_log("", [
        ZloContact(at(9, 0), "JA1ZZA", received_number="13H", operator="JA1ZZZ", memo="one"),
        ZloContact(at(9, 1), "JA1ZZB", received_number="14H", operator="JH1ZZY", memo="two"),
        ZloContact(at(9, 2), "JA1ZZC", received_number="15H", operator="", memo="three"),
        ZloContact(at(9, 3), "JA1ZZD", received_number="16H", operator="ja1zzz", memo="four"),
        ZloContact(at(9, 4), "JA1ZZE", received_number="17H", operator="JA1ZZZ ", memo="five"),
        ZloContact(at(9, 5), "JA1ZZF", received_number="18H", operator="JA1ZZZ", memo="six"),
    ])  # fmt: skip


for case in (
    "zlo-one-operator", "zlo-one-operator-unknown", "zlo-operator-in-remarks",
    "zlo-operator-not-asked",
):  # fmt: skip
    LOGS[case] = ("log/x.zlo", zlo_operators)


@log("log/x.zlo")
def zlo_memo_equals() -> bytes:
    return zlo_memos(["plain", "memo=marked", " memo= blank", "", "  ", "(14050)", "two memo= words"])


@log("log/x.zlo")
def zlo_times() -> bytes:
    whens = [
        datetime(2025, 4, 27, 9, 0), at(12, 34, 59.4), at(12, 34, 59.6), at(23, 59, 59.7),
        datetime(2024, 2, 28, 23, 59, 59), datetime(2024, 2, 29, 15, 0),
        datetime(2024, 12, 31, 23, 59, 59, 600000), datetime(1999, 12, 31, 15, 1),
        datetime(2025, 1, 1), datetime(2025, 12, 31, 14, 59, 59, 499000),
    ]  # fmt: skip
    return zlo_log("", [
        ZloContact(when, call, received_number="13H")
        for when, call in zip(whens, calls("7", len(whens)), strict=True)
    ])  # fmt: skip


@log("log/x.zlo")
def zlo_reports() -> bytes:
    reports = [(599, 599), (59, 5), (0, 0), (255, 256), (1000, 65535), (258, 5991)]
    return zlo_log("", [
        ZloContact(at(9, n), call, sent=sent, received=received, received_number="13H")
        for n, (call, (sent, received)) in enumerate(
            zip(calls("8", len(reports)), reports, strict=True)
        )
    ])  # fmt: skip


@log("log/x.zlo")
def zlo_last_record_cut() -> bytes:
    whole = zlo_log("", [
        ZloContact(at(9, n), call, received_number="13H")
        for n, call in enumerate(calls("9", 3))
    ])  # fmt: skip
    return whole[:-1]


@log("log/x.zlo")
def zlo_header_alone() -> bytes:
    return zlo_header("西部市郡区コンテスト")


def zlo_contest(contest_name: str | bytes) -> bytes:
    """Numbers that are found, that are found without their letters, and a foreign call."""
    numbers = ["1301", "1301H", "25", "H25", "TK", "001", "1401", "W10101", "", "ISL"]
    contacts = [
        ZloContact(at(10, n), call, received_number=number, memo="(7012)")
        for n, (call, number) in enumerate(zip(calls("1", len(numbers)), numbers, strict=True))
    ]
    contacts.insert(2, ZloContact(at(10, 30), "DL1ZZX", received_number="999"))
    return zlo_log(contest_name, contacts)


CONTEST_NAMES = {
    "zlo-dat-found": "西部市郡区コンテスト CWの部",
    "zlo-dat-first-row-of-list": "電力別コンテスト 西部市郡区 電信の部 清流コンテスト",
    "zlo-dat-mas-in-own-folder": " 湖国コンテスト ",
    "zlo-dat-mst-prefix": "島めぐりコンテスト",
    "zlo-dat-settings-file": "C:\\zLog\\CFG\\Fham.cfg",
    "zlo-dat-other-settings-file": "C:\\zLog\\CFG\\WESTCITY.CFG 西部市郡区コンテスト",
    "zlo-dat-not-in-list": "C:\\zLog\\CFG\\UNKNOWN.CFG",
    "zlo-dat-case-of-name": "All Hills Test",
    "zlo-dat-no-name": "",
    "zlo-dat-00": "自由ナンバーコンテスト",
    "zlo-dat-00-taken": "テレコムＱＳＯパーティー",
    "zlo-dat-00-taken-without-data": "テレコムＱＳＯパーティー",
    "zlo-dat-no-data": "連番コンテスト",
    "zlo-hl-code": "西部市郡区コンテスト",
}
for case, name in CONTEST_NAMES.items():
    LOGS[case] = ("log/x.zlo", lambda name=name: zlo_contest(name))


@log("log/x.zlo")
def zlo_dat_length_of_name() -> bytes:
    """The length byte ends the name in the middle of a character, and what follows is no name."""
    name = "西部市郡区コンテスト電信".encode("cp932")
    contact = ZloContact(at(10, 0), "JA1ZZA", received_number="1301")
    return zlo_header(name, length=21) + zlo_record(contact)


# RTCL


def rtcl_whole() -> list[RtclContact]:
    return [
        RtclContact(at(9, 0), "JA1ZZA", "7", rtcl_counter(7_012_000), received_number="13H",
                    multiplier="13", operator="JA1ZZZ", comment="FB"),
        RtclContact(at(9, 1), "JR6ZZB/P", "21", rtcl_counter(21_350_000), "USB", "PH", "59", "57",
                    received_number="47M", multiplier="47", second_multiplier="P47"),
        RtclContact(at(9, 2), "JA1ZZA", "7", rtcl_counter(7_013_000), received_number="13H",
                    dupe=1, operator="JA1ZZZ", comment="ﾓｰﾋﾞﾙ 移動"),
        RtclContact(at(9, 3), "DL1ZZD", "14", rtcl_counter(14_080_500), "RTTY",
                    received_number="001", third_text="DL", sent_text="S", received_text="R"),
        RtclContact(at(9, 4), "JA3ZZE", "430", rtcl_counter(433_020_000), "FM", "", "59", "59",
                    received_number="2501P"),
    ]  # fmt: skip


@log("log/x.log")
def rtcl_v4_defaults() -> bytes:
    return rtcl_log(RTCL_V4, rtcl_whole())


@log("log/x.log")
def rtcl_v430_defaults() -> bytes:
    return rtcl_log(RTCL_V430, rtcl_whole())


@log("log/x.log")
def rtcl_kind_of_length() -> bytes:
    """203 records of 209 bytes are as long as 209 records of 203 bytes."""
    return rtcl_log(RTCL_V430, [
        RtclContact(at(n // 60, n % 60), f"JA{n % 10}Z{chr(65 + n % 26)}{chr(65 + n // 26)}",
                    counter=rtcl_counter(7_000_000 + 1000 * n), received_number=f"{n:03d}")
        for n in range(203)
    ])  # fmt: skip


@log("log/x.log")
def rtcl_refused_length() -> bytes:
    return rtcl_log(RTCL_V4, rtcl_whole())


@log("log/x.log")
def rtcl_refused_first_byte() -> bytes:
    contacts = rtcl_whole()
    contacts[0].kind = "1"
    return rtcl_log(RTCL_V430, contacts)


BANDS_OF_BASES = "1.8 1.9 3.5 7 10 14 18 21 24 28 29 50 144 430 1200 2400 5600".split()


def rtcl_no_counter() -> list[RtclContact]:
    return [
        RtclContact(at(9, n), call, band, counter=0, received_number="13H")
        for n, (call, band) in enumerate(zip(calls("4", 17), BANDS_OF_BASES, strict=True))
    ]


@log("log/x.log")
def rtcl_v4_bands() -> bytes:
    return rtcl_log(RTCL_V4, rtcl_no_counter())


@log("log/x.log")
def rtcl_v430_bands() -> bytes:
    return rtcl_log(RTCL_V430, rtcl_no_counter())


# The lower ends of the rows, and the bands that a contact there stands on.
THRESHOLDS = {
    997670912: "1.8", 1023270912: "1.9", 1253306368: "3.5", 1521741824: "7", 1662177280: "10",
    1790177280: "14", 1898612736: "18", 1946612736: "21", 1994612736: "24", 2058612736: "28",
    2074612736: "28", 2279048192: "50", 2287048192: "50", 2295048192: "50", 2303048192: "50",
    2311048192: "50", 2703919104: "144", 3114354560: "430", 3521225472: "1200",
    3789660928: "2400", 4108096384: "5600",
}  # fmt: skip


@log("log/x.log")
def rtcl_frequency_thresholds() -> bytes:
    """One below, at, one above and two kilohertz above the lower end of each row."""
    contacts = [
        RtclContact(at(9 + n // 4, n % 4 * 10 + k), f"JA{k + 1}Z{chr(65 + n)}", band,
                    threshold + more, received_number=f"{n:02d}{k}")
        for n, (threshold, band) in enumerate(THRESHOLDS.items())
        for k, more in enumerate((-1, 0, 1, 2000 * 256))
    ]  # fmt: skip
    return rtcl_log(RTCL_V430, contacts)


@log("log/x.log")
def rtcl_frequency_offsets() -> bytes:
    contacts = [
        # No row and no record before, then one before.
        ("7", 1), ("7", 997670910), ("7", 1521741824 + 64 * 12000), ("14", 500),
        ("14", 0), ("21", 997670910),
        # Half a kilohertz goes up.
        ("7", 1521741824 + 64 * 12499), ("7", 1521741824 + 64 * 12500),
        ("7", 1521741824 + 64 * 12501),
        # Bands whose offset is stretched, and the same counters on a band that is none of them.
        ("1200", 3521225472 + 25 * 945000), ("2400", 3789660928 + 125 * 27000),
        ("5600", 4108096384 + 625 * 16000), ("430", 3521225472 + 25 * 945000),
        ("430", 4108096384 + 625 * 16000),
        # The text of the band decides, not the row.
        ("1200", 1521741824 + 64 * 10), ("12", 1521741824 + 64 * 10),
        ("5600", 4294967295), ("144", 2703919104 + 2 * 100000),
    ]  # fmt: skip
    return rtcl_log(RTCL_V4, [
        RtclContact(at(9, n), call, band, counter, received_number=f"{n:02d}")
        for n, (call, (band, counter)) in enumerate(
            zip(calls("5", len(contacts)), contacts, strict=True)
        )
    ])  # fmt: skip


@log("log/x.log")
def rtcl_modes() -> bytes:
    modes = ["AM", "CW", "RTTY", "PSK31", "USB", "LSB", "FM", "AM", "CW", "PH", "cw", "SSB", "",
             "RTTY", "RTTYX"]  # fmt: skip
    return rtcl_log(RTCL_V430, [
        RtclContact(at(9, n), call, mode=mode, second_mode="X", counter=rtcl_counter(7_010_000 + n))
        for n, (call, mode) in enumerate(zip(calls("6", len(modes)), modes, strict=True))
    ])  # fmt: skip


def rtcl_dupes() -> list[RtclContact]:
    """Markers and points are read as hexadecimal, QTC records are none."""
    points = [0, 1, 9, 10, 12, 99, 100, 255]
    contacts = [
        RtclContact(at(9, n), call, counter=rtcl_counter(7_010_000), points=worth,
                    dupe=worth if n % 2 else 0, received_number="13H")
        for n, (call, worth) in enumerate(zip(calls("7", len(points)), points, strict=True))
    ]  # fmt: skip
    contacts.insert(2, RtclContact(at(9, 10), "QTCTEST", counter=rtcl_counter(14_000_000),
                                   mode="RTTY", kind="QTC"))  # fmt: skip
    contacts.insert(5, RtclContact(at(9, 11), "QTCTEST", kind="QTC-R"))
    contacts.append(RtclContact(at(9, 12), "JA1ZZA", kind="0QTC"))
    contacts.append(RtclContact(at(9, 13), "JA1ZZB", kind="qtc", counter=1))
    return contacts


@log("log/x.log")
def rtcl_v4_qtc_and_dupes() -> bytes:
    return rtcl_log(RTCL_V4, rtcl_dupes())


@log("log/x.log")
def rtcl_v430_qtc_and_dupes() -> bytes:
    return rtcl_log(RTCL_V430, rtcl_dupes())


@log("log/x.log")
def rtcl_dupe_list() -> bytes:
    return rtcl_log(RTCL_V430, rtcl_whole())


def rtcl_operators() -> bytes:
    texts = [("JA1ZZZ", "first"), ("JH1ZZY", "second"), ("", "third"), ("JA1ZZZ", ""), ("", ""),
             ("ja1zzz", "fourth (21050)"), ("無線", "能登 表彰局"), ("%", "per%cent")]  # fmt: skip
    return rtcl_log(RTCL_V4, [
        RtclContact(at(9, n), call, counter=rtcl_counter(7_010_000), received_number="13H",
                    operator=operator, comment=comment, dupe=n % 2)
        for n, (call, (operator, comment)) in enumerate(
            zip(calls("8", len(texts)), texts, strict=True)
        )
    ])  # fmt: skip


for case in (
    "rtcl-operator-and-memo", "rtcl-memo-equals", "rtcl-one-operator", "rtcl-frequency-not-asked",
):  # fmt: skip
    LOGS[case] = ("log/x.log", rtcl_operators)


@log("log/x.log")
def rtcl_column_edges() -> bytes:
    return rtcl_log(RTCL_V430, [
        RtclContact(at(9, 0), "JA1ZZA/QRPPXX", "1200", rtcl_counter(1_294_500_000), "PSK31", "",
                    "599123", "599456", "1234567890", "1234567890", "", "", "JA1ZZZ", "x" * 20,
                    "1234567890", "12345678", "", 0, 255),
        RtclContact(at(9, 1), "JA1ZZB", "7", rtcl_counter(7_010_000), sent_number="1234567表",
                    received_number="123456表", multiplier="1234表", second_multiplier="表表表"),
        RtclContact(at(9, 2), " JA1ZZC ", " 7", rtcl_counter(7_010_000), " CW", sent=" 599",
                    received="  599", received_number="  13 H", operator=" OP", comment="  tail "),
        RtclContact(at(9, 3), "JA1ZZD", "7", rtcl_counter(7_010_000), sent="", received="",
                    sent_number="", received_number="表表表表", comment="表" * 10),
        RtclContact(at(9, 4), b"JA1\x80ZE", "7", rtcl_counter(7_010_000),
                    received_number=b"13\xfd\xff", operator=b"A\xa0B",
                    comment=b"\x81\x20x\xfc"),
    ])  # fmt: skip


@log("log/x.log")
def rtcl_times() -> bytes:
    whens = [
        at(0, 0), at(12, 34, 59.4), at(12, 34, 59.6), at(23, 59, 59.7),
        datetime(2024, 2, 28, 23, 59, 59), datetime(2024, 12, 31, 23, 59, 59, 600000),
        datetime(1999, 12, 31, 15, 1), datetime(2025, 1, 1),
    ]  # fmt: skip
    return rtcl_log(RTCL_V4, [
        RtclContact(when, call, counter=rtcl_counter(7_010_000), received_number="13H")
        for when, call in zip(whens, calls("9", len(whens)), strict=True)
    ])  # fmt: skip


@log("log/x.log.log")
def rtcl_name_with_extension_twice() -> bytes:
    return rtcl_log(RTCL_V4, rtcl_whole())


@log("log/X.LOG")
def rtcl_capital_extension() -> bytes:
    return rtcl_log(RTCL_V430, rtcl_whole())


@log("log/x.log")
def rtcl_old_files_made_anew() -> bytes:
    return rtcl_log(RTCL_V430, rtcl_whole())


@log("log/x.log")
def rtcl_quotes_and_commas() -> bytes:
    contacts = rtcl_whole()
    contacts[0].comment = '"QRP", 5 W'
    contacts[1].comment = "a,b"
    contacts[1].operator = "A,B"
    return rtcl_log(RTCL_V430, contacts)


@log("log/x.log")
def rtcl_line_break_at_end() -> bytes:
    """What stands behind the break is a field of the next contact, and there is none."""
    contacts = rtcl_whole()
    contacts[-1].comment = "one\r\ntwo"
    return rtcl_log(RTCL_V430, contacts)


@log("log/x.log")
def rtcl_contest_data() -> bytes:
    numbers = ["1301", "25H", "H25", "", "26P", "999M"]
    contacts = [
        RtclContact(at(9, n), call, counter=rtcl_counter(7_010_000), received_number=number)
        for n, (call, number) in enumerate(zip(calls("3", len(numbers)), numbers, strict=True))
    ]
    contacts.insert(2, RtclContact(at(9, 30), "DL1ZZX", "14", 0, received_number="001"))
    return rtcl_log(RTCL_V430, contacts)


def main() -> int:
    for case, (path, make) in LOGS.items():
        target = CASES / case / "input" / path
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_bytes(make())
    print(f"{len(LOGS)} logs written")
    return 0


if __name__ == "__main__":
    sys.exit(main())
