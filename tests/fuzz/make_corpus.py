#!/usr/bin/env python3
"""Writes the inputs of the fuzz targets below corpus/, always the same to the byte."""

import sys
from dataclasses import replace
from datetime import datetime
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "golden"))

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
from tables import Contact, own_table, quoted_rows, table  # noqa: E402

CONTACTS = [
    Contact("JA1ZZA", qsl="J**"),
    Contact("JH1ZZB/1", date="1999/12/31", frequency="430", mode="FM", qsl="N  "),
    Contact("JR8YYX", mode="SSB", time="23:59U", name="山田", is_deleted=True),
]


def log_books() -> dict[str, bytes]:
    own = own_table(CONTACTS)
    plain = table([("A", 8), ("B", 8)], [["JA1ZZA", "24/05/03"]], [False])
    return {
        "own_table": own,
        "plain_table": plain,
        "memo_table": b"\x83" + own[1:],
        "no_columns": own[:32] + b"\r" + own[33:],
        "header_of_zero": own[:8] + b"\0\0" + own[10:],
        "header_of_65535": own[:8] + b"\xff\xff" + own[10:],
        "record_of_zero": own[:10] + b"\0\0" + own[12:],
        "record_of_65535": own[:10] + b"\xff\xff" + own[12:],
        "promises_more": own[:4] + b"\xff\xff\xff\xff" + own[8:],
        "rows": quoted_rows(CONTACTS),
        "blank_lines": b"\r\n\r\n" + quoted_rows(CONTACTS).replace(b"\r\n", b"\n\n"),
        "no_log_book": b"neither a table\nnor rows\n",
        "zeros": bytes(300),
        "ones": b"\xff" * 300,
        "empty": b"",
    }


def text(lines: str) -> bytes:
    return lines.replace("\n", "\r\n").encode("cp932")


ALL_LOG = """\
zLog for Windows
2025/04/26 21:05 JA1ZZA       599 11M     589 104M    104   -     7    CW   1  %%A%% SSN (7012)
2025/04/26 21:06 JR8YYX/1     59  11M     57  101H    -     -     430  FM   0  -DUPE- 山田 (433.02)
2025/04/26 21:07 KH2/JA1ZZB   59  11M     59  25      -     -     14   SB   1  $DX
"""
TXT_LOG = """\
mon day time  callsign      sent         rcvd      multi   MHz mode pts memo
08  03 1205 JA1ZZA     59911M          589104M            7   CW    1  %%A%% SSN (7012)
 8   3 1206 JR8YYX/1   59 11M          57 101H            430 FM    1  山田
"""
CABRILLO = """\
START-OF-LOG: 3.0
CALLSIGN: JA1ZZZ
QSO:  7012 CW 2025-04-26 2105 JA1ZZZ 599 11M JA1ZZA 589 104M
QSO: 21200 PH 2025-04-26 2106 JA1ZZZ 59 11M JR8YYX/1 57 101H extra % words
X-QSO: 14080 RY 2025-4-6 2107 JA1ZZZ　599\t11M JE1ZZB   599 25
END-OF-LOG:
"""
ADIF = """\
a heading
<EOH>
<CALL:6>JA1ZZA <qso date:8:d>20250426 <QSO_DATE:8>20250426 <TIME_ON:6>210559 <FREQ:9>14.025000 \
<BAND:3>20M <MODE:2>CW <RST_SENT:3>599 <RST_RCVD:3>589 <APP_N1MM_EXCHANGE1:4>104M <EOR>
<call:8>JR8YYX/1 <qso_date:8>20250426
<time_on:4>2106 <band:4>70CM
<jcc:4>1001 <jcg:5>10001 <name:4>山田 <my_state:2>11
<eor>
<CALL:6>JE1ZZB<FREQ:2>10G<EOR>
"""


def all_logs() -> dict[str, bytes]:
    heading, first, *_ = ALL_LOG.splitlines(keepends=True)
    return {
        "contacts": text(ALL_LOG),
        "bare_line_ends": text(ALL_LOG).replace(b"\r\n", b"\n"),
        "short_lines": text(heading + "2025/04/26\n\nJA1ZZA\n"),
        "marks": text(heading + first.replace("%%A%% SSN (7012)", "%((%)%%(7012(14012)")),
        "no_characters": text(heading) + b"\x81\xff\xa0\x00" * 40 + b"\r\n",
        "heading_alone": text(heading),
        "empty": b"",
    }


def txt_logs() -> dict[str, bytes]:
    heading, first, *_ = TXT_LOG.splitlines(keepends=True)
    return {
        "contacts": text(TXT_LOG),
        "bare_line_ends": text(TXT_LOG).replace(b"\r\n", b"\n"),
        "short_lines": text(heading + "8\n\n 8 3\n"),
        "one_digit_month": text(heading + first[1:]),
        "no_characters": text(heading) + b"\x81\xff\xa0\x00" * 40 + b"\r\n",
        "empty": b"",
    }


def cabrillo_logs() -> dict[str, bytes]:
    heading = "START-OF-LOG:\n"
    contact = CABRILLO.splitlines(keepends=True)[2]
    return {
        "contacts": text(CABRILLO),
        "bare_line_ends": text(CABRILLO).replace(b"\r\n", b"\n"),
        "short_line": text(heading + "QSO: 7012 CW 2025-04-26\n"),
        "short_date": text(heading + contact.replace("2025-04-26", "2025-0426")),
        "blanks": text(heading + contact.replace(" ", " " * 60)),
        "frequencies": text(
            heading
            + "".join(
                contact.replace("7012", khz)
                for khz in ("1e3", "-7000", "1e308", "1e999", "&H10", "nan", ".", "146001")
            )
        ),
        "no_characters": text(heading) + b"QSO: \x81\xff\xa0\x00 \x81\x40" * 20 + b"\r\n",
        "no_heading": text(contact),
        "empty": b"",
    }


def adif_logs() -> dict[str, bytes]:
    return {
        "contacts": text(ADIF),
        "bare_line_ends": text(ADIF).replace(b"\r\n", b"\n"),
        "tag_a_line": text("<EOH>\n" + ADIF.splitlines()[2].replace(" <", "\n<") + "\n"),
        "long_heading": text("x\n" * 25 + ADIF),
        "no_heading": text("<CALL:6>JA1ZZA<EOR>\n"),
        "frequencies": text(
            "<EOH>\n"
            + "".join(
                f"<CALL:6>JA1ZZA<FREQ:9>{mhz}<EOR>\n"
                for mhz in ("1e999", "-7", "7.0.1", "1d3", "&H7", "", "14.025山")
            )
        ),
        "broken_tags": text("<EOH>\n<<CALL:>>JA1ZZA<BAND:<FREQ:>7<QSO_DATE:8>2025<TIME_ON:4<EOR>\n"),
        "no_characters": b"<EOH>\r\n<CALL:4>\x81\xff\xa0\x00<MODE:2>\x81<EOR>\r\n",
        "empty": b"",
    }


def survey_logs() -> dict[str, bytes]:
    """Inputs of each kind, whose length makes its remainder by four that of the kind."""
    logs = (text(ALL_LOG), text(TXT_LOG), text(CABRILLO), text(ADIF))
    return {
        name: log + b" " * ((remainder - len(log)) % 4)
        for remainder, (name, log) in enumerate(zip(("all", "txt", "cabrillo", "adif"), logs))
    }


WHEN = datetime(2025, 4, 26, 21, 5)
ZLO_CONTACTS = [
    ZloContact(WHEN, "JA1ZZA", received_number="104M", operator="A", memo="SSN (7012)"),
    ZloContact(WHEN, "JR8YYX/1", band=11, mode=2, operator="山田", memo="(0) 山田"),
]


def with_days(record: bytes, at: int, days: bytes) -> bytes:
    return record[:at] + days + record[at + 8 :]


# Days that no calendar holds: no number, endless, far away, in front of the first.
ODD_DAYS = {
    "no_number": b"\0\0\0\0\0\0\xf8\x7f",
    "endless": b"\0\0\0\0\0\0\xf0\x7f",
    "far_away": b"\xff" * 7 + b"\x7f",
    "long_ago": b"\0\0\0\0\0\0\xf0\xc0",
}


def zlo_logs() -> dict[str, bytes]:
    record = zlo_record(ZLO_CONTACTS[0])
    lengths = {"call": 255, "sent_number": 255, "received_number": 12, "operator": 15, "memo": 68}
    return {
        "contacts": zlo_log("全市全郡コンテスト", ZLO_CONTACTS),
        "settings_file": zlo_header("C:\\zlog\\Fham.cfg"),
        "no_name": zlo_log("", ZLO_CONTACTS[:1]),
        "lengths": zlo_header("x", 255) + zlo_record(replace(ZLO_CONTACTS[1], lengths=lengths)),
        "beside_the_tables": zlo_header() + zlo_record(replace(ZLO_CONTACTS[0], band=16, mode=6)),
        "cut": zlo_log("x", ZLO_CONTACTS)[:-1],
        "zeros": bytes(600),
        "ones": b"\xff" * 600,
        "empty": b"",
    } | {name: zlo_header() + with_days(record, 0, days) for name, days in ODD_DAYS.items()}


RTCL_CONTACTS = [
    RtclContact(WHEN, "JA1ZZA", counter=rtcl_counter(7_012_000), operator="A", comment="SSN"),
    RtclContact(WHEN, "JR8YYX/1", band="1200", counter=rtcl_counter(1_295_000_000), mode="FM",
                dupe=1, points=10, multiplier="101", comment="山田"),
]  # fmt: skip


def rtcl_logs(record_bytes: int) -> dict[str, bytes]:
    first, second = RTCL_CONTACTS
    time_at = 29 if record_bytes == RTCL_V430 else 26
    record = rtcl_log(record_bytes, [first])
    return {
        "contacts": rtcl_log(record_bytes, RTCL_CONTACTS),
        "qtc": rtcl_log(record_bytes, [first, replace(second, kind="QTC")]),
        "no_counter": rtcl_log(record_bytes, [replace(first, counter=0, band="430")]),
        "counters": rtcl_log(
            record_bytes, [replace(first, counter=c) for c in (1, 997670911, 2**32 - 1)]
        ),
        "line_ends": rtcl_log(record_bytes, [replace(first, call="JA\r\n\"1\",", comment="\n")]),
        "modes": rtcl_log(record_bytes, [replace(first, mode="X"), replace(first, mode="PSK31")]),
        "no_characters": rtcl_log(record_bytes, [replace(first, comment=b"\x81\xff\xa0\x00" * 5)]),
        "cut": rtcl_log(record_bytes, RTCL_CONTACTS)[:-1],
        "zeros": bytes(record_bytes * 2),
        "ones": b"\xff" * record_bytes * 2,
        "empty": b"",
    } | {name: with_days(record, time_at, days) for name, days in ODD_DAYS.items()}


def main() -> None:
    for target, inputs in (
        ("log_book", log_books()),
        ("zlog_all", all_logs()),
        ("zlog_txt", txt_logs()),
        ("cabrillo", cabrillo_logs()),
        ("adif", adif_logs()),
        ("contest_dialog", survey_logs()),
        ("zlo", zlo_logs()),
        ("rtcl_v4", rtcl_logs(RTCL_V4)),
        ("rtcl_v430", rtcl_logs(RTCL_V430)),
    ):
        folder = HERE / "corpus" / target
        folder.mkdir(parents=True, exist_ok=True)
        for name, content in inputs.items():
            (folder / name).write_bytes(content)


if __name__ == "__main__":
    main()
