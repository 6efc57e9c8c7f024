#!/usr/bin/env python3
"""Writes the log books of the golden cases anew, each below its case's input/hamlog/."""

import sys
from dataclasses import replace
from pathlib import Path

sys.dont_write_bytecode = True

from tables import (  # noqa: E402
    OWN_LAYOUT,
    TABLE_WITH_MEMOS,
    Contact,
    own_table,
    quoted_row,
    quoted_rows,
    table,
)

CASES = Path(__file__).resolve().parent / "cases"

# Worked in CW on two bands and in SSB on one.
ONE_STATION = [
    Contact("JA1ZZA", "2019/03/02", "14", "CW"),
    Contact("JA1ZZA", "2020/08/15", "7", "CW"),
    Contact("JA1ZZA", "2021/01/10", "7", "SSB"),
]

SOME_STATIONS = [
    *ONE_STATION,
    Contact("JA1ZZA", "2022/01/10", "7", "CW", qsl="   "),  # once more on band and mode
    Contact("JH1ZZB", "2022/05/05", "21.275", "SSB", qsl="   "),
    Contact("JE2ZZC/2", "2023/07/22", "430", "FM", qsl="J*J"),
    Contact("KH2/JA1ZZD", "2023/12/03", "28", "CW", qsl="N  "),
    Contact("7K1ZZE", "2024/02/11", "144.12", "SSB", qsl="J R"),
]

MARKS = [
    ("JA1ZZA", "   "), ("JA1ZZB", "J  "), ("JA1ZZC", "J* "), ("JA1ZZD", " * "), ("JA1ZZE", "J*R"),
    ("JA1ZZF", "J R"), ("JA1ZZG", "  R"), ("JA1ZZH", "N  "), ("JA1ZZI", " S "), ("JA1ZZJ", "NNN"),
]  # fmt: skip
MARKED = [Contact(call, qsl=marks) for call, marks in MARKS]

FREQUENCIES = (
    "0.9 1 1.9 2 2.1 2.5 3 3.5 4 5 7 8 8.1 9 10.1 11 12.9 13 15 17 19 19.5 20 22 22.5 23 25 26 27 "
    "29.6 30 49 54 143 146 146.1 429 440 1119 1300 2399 2450 5399 5850 10000 10G .9 - MHz 7,1"
).split()

MODES = "SSB CW AM FM STV RTY PSK A3J A1 A3 F3 FT8 RTTY cw SSBX".split()

# A layout without the names of the own one: what a column is, its place says.
OTHER_LAYOUT = [
    ("CALL", 20), ("QSODATE", 8), ("QSOTIME", 6), ("SENT", 3), ("RCVD", 3), ("MHZ", 9),
    ("MODUS", 6), ("CODE", 8), ("GRID", 6), ("MARKS", 3), ("NAME", 20), ("QTH", 40),
    ("NOTE1", 60), ("NOTE2", 60), ("CALLS", 6), ("MORE", 5),
]  # fmt: skip


def other_table(contacts: list[Contact]) -> bytes:
    # Behind the fourteen fields stands a column named CALLS, but none named IGN.
    records = [[*contact.fields, "JA1ZZZ", "more"] for contact in contacts]
    deleted = [contact.is_deleted for contact in contacts]
    return table(OTHER_LAYOUT, records, deleted, TABLE_WITH_MEMOS)


def short_table(contacts: list[Contact]) -> bytes:
    """Ten columns: what a record has not is empty."""
    return table(OTHER_LAYOUT[:10], [contact.fields[:10] for contact in contacts])


def turned_table(contacts: list[Contact]) -> bytes:
    """The own columns, but the call last and each column but the binary ones wider."""
    layout = [
        (name, width if name in ("DATE", "TIME", "FLAG") else width + 3)
        for name, width in reversed(OWN_LAYOUT)
    ]
    return own_table(contacts, layout)


def table_with_nuls() -> bytes:
    """NULs end CALLS and IGN each by itself, and every other field."""
    usual = Contact("JA1ZZA").columns()
    records = [
        usual | {"CALLS": b"JA1\0ZZ", "IGN": b"\0/1"},
        usual | {"CALLS": b"JH1\0ZZ", "IGN": b"/2\0/3"},
        usual | {"CALLS": b"JE1ZZE", "IGN": b"\0" * 14, "FREQ": b"14\0 430", "MODE": b"CW\0X"},
        usual | {"CALLS": b"JF1ZZF", "QSL": b"J\0*"},
        usual | {"CALLS": b"JG1ZZG", "QSL": b"\0**"},
        usual | {"CALLS": b"JI1ZZI", "QSL": b"J*\0"},
        usual | {"CALLS": b"\0JK1ZZ", "IGN": b"JK1ZZK"},
        usual | {"CALLS": b"J A1ZZ", "IGN": b" M /1"},
    ]
    return table(OWN_LAYOUT, [[record[name] for name, _ in OWN_LAYOUT] for record in records])


def rows_of_many_forms() -> bytes:
    """A heading, blank lines, short rows, dates and calls that are not as they should be."""
    heading = "Call Date Time His My Freq Mode Code G/L QSL Name QTH Rmks1 Rmks2 Flag".split()
    usual = Contact("").fields
    return b"".join([
        quoted_row(heading),
        quoted_rows([Contact("JA1ZZA"), Contact("JA1ZZB", frequency="14.05", mode="SSB")]),
        b"\r\n\r\n",
        quoted_row(["JA1ZZC", *usual[1:10]]),
        quoted_row(["JA1ZZD", *usual[1:7]]),  # no marks
        quoted_row(["JA1ZZE", "24/5/3", *usual[2:]]),
        quoted_row(["JA1ZZF", "2024/05/03", *usual[2:]]),
        quoted_row(["JA1ZZG", "240503", *usual[2:]]),
        quoted_row(["JA1ZZH", "", *usual[2:]]),
        quoted_row(["JA1ZZI", "24/05/03 ", *usual[2:]]),
        quoted_row(["JA1ZZK", *usual[1:], "0", "and", "more"]),
        quoted_row(["JA1Z\0ZL", *usual[1:]]),
        quoted_row(["JA1ZZM", *usual[1:9], "J\0*"]),
        quoted_row(["JA1ZZN", *usual[1:]]).rstrip(b"\r\n"),
    ])  # fmt: skip


def dated(dates: dict[str, str]) -> list[Contact]:
    return [Contact(call, date) for call, date in dates.items()]


# The days at the ends of the period from 2010/01/01 to 2020/12/31.
AT_THE_ENDS = dated({
    "JA1ZZA": "2009/12/31", "JA1ZZB": "2010/01/01", "JA1ZZC": "2015/06/15", "JA1ZZD": "2020/12/31",
    "JA1ZZE": "2021/01/01", "JA1ZZF": "1999/12/31",
})  # fmt: skip

JAPANESE_COLUMNS = [
    Contact("JA1ZZA", name="表 能", qth="東京都ソ区十ソ", remark_1="予定表|ｿ\\", remark_2="申"),
    Contact("JH1ZZB", name="竹内さん弌", code="能", locator="表", remark_1="噂" * 27),
    Contact("ＪＥ１ＺＺ", "2024/05/03", "14", "SSB", qsl="能*", remark_2="ｱｲｳ" * 18),
    Contact("JF1ZZF", qsl="表*", qth="ー" * 14),
    Contact("JG1ZZG", qsl="J能", qth="構" * 14),
    Contact("JI1ZZI", qsl="能 "),
]

LOG_BOOKS = {
    "history-codes-once-each": own_table([
        Contact("JA1ZZA"), Contact("JA1ZZA"), Contact("JA1ZZB", mode="SSB"),
        Contact("JA1ZZA", time="10:00U"), Contact("JA1ZZB", frequency="7.0"),
    ]),
    "history-any-band-any-mode": own_table(ONE_STATION),
    "history-same-band": own_table(ONE_STATION),
    "history-same-mode": own_table(ONE_STATION),
    "history-same-band-and-mode": own_table(ONE_STATION),
    "history-worked": own_table(SOME_STATIONS),
    "history-sent": own_table(MARKED),
    "history-received": own_table(MARKED),
    "history-txt-log": own_table(SOME_STATIONS),
    "history-ends-of-period": own_table(AT_THE_ENDS),
    "history-period-with-slashes": own_table(AT_THE_ENDS),
    "history-period-not-stored": own_table(dated({"JA1ZZA": "1959/12/31", "JA1ZZB": "1960/01/01"})),
    "history-period-ends-before-it-begins": own_table(AT_THE_ENDS),
    "history-period-ends-today": own_table(AT_THE_ENDS),
    "history-period-changed": own_table(AT_THE_ENDS),
    "history-period-changed-read-anew": own_table(AT_THE_ENDS),
    "history-years-50-and-51": own_table(dated({
        "JA1ZZA": "2050/01/01", "JA1ZZB": "1951/01/01", "JA1ZZC": "1950/01/02",
        "JA1ZZD": "1950/01/01", "JA1ZZE": "1951/12/31", "JA1ZZF": "2051/02/01",
        "JA1ZZG": "2050/12/31", "JA1ZZH": "2000/01/01",
    })),
    "history-year-50-by-default": own_table(dated({"JA1ZZA": "1950/01/01", "JA1ZZB": "1951/01/01",
                                                   "JA1ZZC": "1960/01/01"})),
    "history-not-read-again": own_table(SOME_STATIONS),
    "history-received-not-read-again": own_table(SOME_STATIONS),
    "history-read-at-every-run": own_table(SOME_STATIONS),
    "history-time-differs": own_table(SOME_STATIONS),
    "history-no-time-stored": own_table(SOME_STATIONS),
    "history-file-missing": own_table(SOME_STATIONS),
    "history-time-of-other-kind": own_table(MARKED),
    "history-file-breaks-off": own_table(SOME_STATIONS),
    "history-other-table": other_table([
        *SOME_STATIONS,
        Contact("JF1ZZF/JD1/MM/P", frequency="1.9125"),
        Contact("JG1ZZG", mode="RTTY", is_deleted=True),
    ]),
    "history-short-table": short_table(SOME_STATIONS),
    "history-own-columns-in-other-order": turned_table(SOME_STATIONS),
    "history-quoted-rows": quoted_rows(SOME_STATIONS),
    "history-quoted-rows-of-many-forms": rows_of_many_forms(),
    "history-deleted-records": own_table([
        Contact("JA1ZZA", is_deleted=True), Contact("JA1ZZB"),
        Contact("JA1ZZC", is_deleted=True), Contact("JA1ZZC", frequency="14"),
    ]),
    "history-all-deleted": own_table([replace(contact, is_deleted=True) for contact in MARKED]),
    "history-long-calls": own_table([
        Contact("JA1ZZA/JD1/MM1", frequency="14"), Contact("JA1ZZA/JD1/MM", mode="SSB"),
        Contact("JA1ZZA/JD1/MM2"), Contact("JA1ZZA/JD1/MM1"), Contact("JA1ZZA/JD1/M"),
        Contact("KH2/JA1ZZBXX"),
    ]),
    "history-two-slashes": own_table([
        Contact("KH2/JA1ZZA"), Contact("KH2/JA1ZZB/P"), Contact("JA1ZZC/1"), Contact("JA1ZZD"),
        Contact("W1/JA1ZZE/M"), Contact("W1/JA1ZZE"), Contact("JA1ZZF/"),
    ]),
    "history-unknown-modes": own_table([
        Contact("JA1ZZA", mode="FT8"), Contact("JA1ZZB", mode=""), Contact("JA1ZZC", mode="RTTY"),
        Contact("JA1ZZD", mode="RTY"), Contact("JA1ZZE", mode="cw"), Contact("JA1ZZF", mode="PSK"),
        Contact("JA1ZZG", mode="CW"), Contact("JA1ZZH", mode=" CW"),
    ]),
    "history-modes": own_table([Contact("JA1ZZA", mode=m) for m in MODES if len(m) <= 4] + [
        Contact(f"JA1ZZ{chr(ord('B') + n)}", mode=m) for n, m in enumerate(MODES)
    ]),
    "history-frequencies": own_table([
        *(Contact("7K1ZZA", frequency=f) for f in FREQUENCIES),
        *(Contact(f"JA{n // 10}ZZ{chr(ord('A') + n % 10)}", frequency=f)
          for n, f in enumerate(FREQUENCIES)),
        Contact("JH1ZZA", frequency=""), Contact("JH1ZZB", frequency=" 7.03"),
        Contact("JH1ZZC", frequency="2.5"), Contact("JH1ZZD", frequency="10000"),
        Contact("JH1ZZE", frequency="1296"), Contact("JH1ZZF", frequency="28.85"),
    ]),
    "history-frequency-of-memo": own_table([
        Contact("JA1ZZA", frequency="10.1"), Contact("JA1ZZB", frequency="3.5"),
        Contact("JA1ZZC", frequency="5"), Contact("JA1ZZD", frequency="24.9"),
    ]),
    "history-quotes-sent": own_table([
        Contact('JA1ZZA"'), Contact('"JA1ZZB"', mode="SSB"), Contact("JA1ZZB"),
        Contact("JA1ZZC", qsl='"  '), Contact("JA1ZZD", qsl=' " '), Contact("JA1ZZE", qsl='J "'),
        Contact('KH2/JA1ZZF"PX'), Contact('KH2/JA1ZZGX"P'), Contact('"', mode="FM"),
        Contact("JA1ZZH", mode='CW"', qth='"', remark_1='"a","b"'),
        Contact("JA1ZZI", frequency='"7'),
    ]),
    "history-quotes-received": own_table([
        Contact("JA1ZZA", qsl='J" '), Contact("JA1ZZB", qsl='"  '), Contact("JA1ZZC", qsl=' " '),
        Contact("JA1ZZD", qsl='" R'), Contact("JA1ZZE", qsl="J* "), Contact("JA1ZZF", qsl='  "'),
    ]),
    "history-commas": own_table([
        Contact("JA1ZZ,1"), Contact("JA1ZZ,2", mode="SSB"), Contact("JA1ZZ", frequency="14"),
        Contact("JA1ZZB,P,X"), Contact("JA1ZZC,"),
    ]),
    "history-nuls": table_with_nuls(),
    "history-japanese-columns": own_table(JAPANESE_COLUMNS),
    "history-empty-table": own_table([]),
    "history-empty-file": b"",
    "history-text-is-no-log-book": "これはログブックではありません。\r\n2025/04/01\r\n".encode("cp932"),
    "history-nine-columns": quoted_row(Contact("JA1ZZA").fields[:9]),
    "history-ten-columns": quoted_row(Contact("JA1ZZA").fields[:10]),
    "history-row-with-nul": quoted_row([*Contact("JA1ZZA").fields[:13], "\0"]),
    "history-short-header": own_table(SOME_STATIONS)[:31],
    "history-no-record-length": own_table([])[:10] + bytes(2) + own_table([])[12:],
    "history-header-length-31": own_table([])[:8] + bytes([31, 0]) + own_table([])[10:],
    "history-log-book-chosen-by-other-button": own_table(SOME_STATIONS),
    "history-call-of-sentinel": own_table([
        Contact("YYYYYY", mode="SSB"), Contact("ZZZZZZ"), Contact("ZZZZZY"),
        Contact("YYYYYY", frequency="14"), Contact("YYYYYYE", frequency="21"),
        Contact("ZZZZZZ", frequency="14"), Contact("YYYYYZ"), Contact("AAAAAA"),
        Contact("YYYYYYE2"), Contact("ZZZ/ZZZZZZ"),
    ]),
    "history-turned-j-to-n": own_table(ONE_STATION),
    "history-turned-n-to-j": own_table(ONE_STATION),
    "history-letter-of-no-qsl": own_table(SOME_STATIONS),
    "history-letter-not-confirmed": own_table(SOME_STATIONS),
    "history-letter-of-other-marks": own_table(SOME_STATIONS),
    "history-transfer-mark-n": own_table(SOME_STATIONS),
    "history-and-club": own_table([
        Contact("JA1YAA"), Contact("JA1YAB", frequency="14"), Contact("JA1ZZA"),
    ]),
    "history-blank-call": own_table(SOME_STATIONS),
    "history-blank-call-same-band": own_table(SOME_STATIONS),
    "history-blank-call-worked": own_table([*SOME_STATIONS, Contact("", frequency="14")]),
    "history-stored-choice": own_table(SOME_STATIONS),
    "history-old-index": own_table(SOME_STATIONS),
    "history-result-of-a-run": (
        "old_hjn.csv",
        b"".join(
            quoted_row([*contact.fields, "0"])
            for contact in [
                Contact("JA1ZZA", mode="CW "), Contact("JH1ZZB/1", frequency="14.050", mode="SSB"),
                Contact("JE1ZZC", mode="RTTY", qsl="N  ", time="00:10U"),
            ]
        ),
    ),
}  # fmt: skip


def main() -> int:
    for case, book in LOG_BOOKS.items():
        name, raw = book if isinstance(book, tuple) else ("Hamlog.hdb", book)
        path = CASES / case / "input" / "hamlog" / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(raw)
    print(f"{len(LOG_BOOKS)} log books written")
    return 0


if __name__ == "__main__":
    sys.exit(main())
