"""The sample logs that are no zLog text: Cabrillo, ADIF, .ZLO and RTCL's two forms.

And what Ctestwin's converter makes of its log, which is zLog text again.
"""

import sys
from dataclasses import replace
from datetime import datetime, timedelta

from contacts import Contact, Plan, Station, letters, make_contacts
from places import AREAS
from sample_files import DRIVE, Dice, write_lines
from zlog_text import all_line

# The tests lay out the binary logs with the same writers.
sys.path.append(str(DRIVE.parent / "tests" / "golden"))

from binary_logs import (  # noqa: E402
    RTCL_V4,
    RTCL_V430,
    ZLO_BANDS,
    ZLO_MODES,
    RtclContact,
    ZloContact,
    rtcl_counter,
    rtcl_log,
    zlo_log,
)

SEED = 20251129
OWN_CALL = "JA1ZZZ"
OWN_ZONE = "25"

# Call areas of the world with their CQ zones.
ZONES = {
    "K1": 5, "W2": 5, "N3": 5, "W4": 5, "K5": 4, "W6": 3, "K6": 3, "N7": 3, "W8": 4, "N9": 4,
    "VE3": 4, "VE7": 3, "KL7": 1, "KH6": 31, "KH2": 27, "DL1": 14, "DK5": 14, "F5": 14, "G3": 14,
    "EA3": 14, "I2": 15, "OK1": 15, "SP5": 15, "OH2": 15, "LZ1": 20, "YO3": 20, "UA3": 16,
    "UR5": 16, "UA9": 17, "UA0": 19, "HL1": 25, "BV2": 24, "BY1": 24, "VR2": 24, "DU1": 27,
    "HS0": 26, "9M2": 28, "YB1": 28, "VU2": 22, "VK2": 30, "VK6": 29, "ZL1": 32, "4X4": 20,
    "PY2": 11, "LU5": 13, "CE3": 12, "ZS6": 38,
}  # fmt: skip
DX_BANDS_BY_DAY = ("14", "21", "21", "28", "28")
DX_BANDS_BY_NIGHT = ("1.9", "3.5", "7", "7", "14")

HF_BANDS_BY_DAY = ("7", "14", "21", "28")
VHF_BANDS = ("50", "50", "144", "144", "430", "430", "1200", "2400", "5600")

ADIF_BANDS = {
    "1.9": "160M", "3.5": "80M", "7": "40M", "14": "20M", "21": "15M", "28": "10M", "50": "6M",
    "144": "2M", "430": "70CM",
}  # fmt: skip
CABRILLO_MODES = {"SSB": "PH", "RTTY": "RY"}
RTCL_MODES = {"RTTY": "RTTY", "CW": "CW", "FM": "FM"}

JAPAN = timedelta(hours=9)


def make_cqww_sample(dice: Dice) -> None:
    """The bands follow the day in Japan, the times are UTC."""
    stations = {}
    while len(stations) < 170:
        area = dice.pick(list(ZONES))
        call = area + letters(dice, 2 + dice.below(2), first="XYZ")
        stations[call] = Station(call, f"{ZONES[area]:02d}", "")
    plan = Plan(9, 48 * 60, DX_BANDS_BY_DAY, DX_BANDS_BY_NIGHT, cw_only=True)
    contacts = make_contacts(dice, list(stations.values()), 240, plan)
    start = datetime(2025, 11, 29)
    lines = [
        "START-OF-LOG: 3.0",
        "CONTEST: CQ-WW-CW",
        f"CALLSIGN: {OWN_CALL}",
        "CATEGORY-OPERATOR: SINGLE-OP",
        "CATEGORY-BAND: ALL",
        "CATEGORY-POWER: LOW",
        "CATEGORY-MODE: CW",
        f"CLAIMED-SCORE: {len(contacts) * 150}",
        "SOAPBOX: all calls in this log are invented",
        *(cabrillo_line(contact, start) for contact in contacts),
        "END-OF-LOG:",
    ]
    write_lines("logs/cqww_sample.cbr", lines)


def cabrillo_line(contact: Contact, start: datetime) -> str:
    at = start + timedelta(minutes=contact.minute)
    mode = CABRILLO_MODES.get(contact.mode, contact.mode)
    return (
        f"QSO: {contact.frequency:5d} {mode} {at:%Y-%m-%d} {at:%H%M} "
        f"{OWN_CALL:<13} {contact.report_sent:<3} {OWN_ZONE:<6} "
        f"{contact.station.call:<13} {contact.report_received:<3} {contact.station.number:<6} 0"
    )


def make_n1mm_sample(dice: Dice, stations: list[Station]) -> None:
    contacts = make_contacts(dice, stations, 180, Plan(first_hour=21, minutes=24 * 60))
    start = datetime(2025, 4, 26, 21) - JAPAN
    header = [
        "ADIF export of a contest log",
        "<ADIF_VER:5>3.1.0",
        "<PROGRAMID:11>N1MM Logger",
        "<EOH>",
    ]
    records = [adif_record(contact, start) for contact in contacts]
    write_lines("logs/n1mm_sample.adi", [*header, *records])


def adif_record(contact: Contact, start: datetime) -> str:
    at = start + timedelta(minutes=contact.minute, seconds=contact.minute * 7 % 60)
    frequency = f"{contact.frequency / 1000:.5f}"
    tags = [
        ("CALL", contact.station.call),
        ("QSO_DATE", f"{at:%Y%m%d}"),
        ("TIME_ON", f"{at:%H%M%S}"),
        ("STATION_CALLSIGN", OWN_CALL),
        ("BAND", ADIF_BANDS[contact.band]),
        ("FREQ", frequency),
        ("FREQ_RX", frequency),
        ("CONTEST_ID", "JA_ALL"),
        ("MODE", contact.mode),
        ("RST_RCVD", contact.report_received),
        ("RST_SENT", contact.report_sent),
        ("OPERATOR", contact.operator),
        ("STX_STRING", "11M"),
        *([("COMMENT", contact.memo)] if contact.memo else []),
        ("APP_N1MM_EXCHANGE1", contact.station.number),
        ("APP_N1MM_POINTS", "0" if contact.is_dupe else "1"),
        ("APP_N1MM_RADIO_NR", "1"),
    ]
    texts = [f"<{name}:{len(value.encode('cp932'))}>{value}" for name, value in tags]
    return " ".join([*texts, "<EOR>"])


def make_zlo_sample(dice: Dice, stations: list[Station]) -> None:
    """Prefectures by their letters; the name in the header stands in the contest list."""
    abbreviations = {area.number: area.abbreviation for area in AREAS}
    stations = [
        replace(station, place=abbreviations[station.place], power="")
        for station in stations
        if station.place
    ]
    plan = Plan(21, 24 * 60, HF_BANDS_BY_DAY, cw_only=True)
    start = datetime(2025, 8, 16, 21)
    contacts = [
        ZloContact(
            when=start + timedelta(minutes=contact.minute, seconds=contact.minute * 7 % 60),
            call=contact.station.call,
            band=ZLO_BANDS.index(contact.band),
            mode=ZLO_MODES.index(contact.mode),
            sent=int(contact.report_sent),
            received=int(contact.report_received),
            sent_number="TK",
            received_number=contact.station.number,
            operator=contact.operator,
            memo=f"{contact.memo} ({contact.frequency})".lstrip(),
        )
        for contact in make_contacts(dice, stations, 160, plan)
    ]
    write_bytes("logs/zlo_sample.zlo", zlo_log("KCJコンテスト", contacts))


def make_rtcl_samples(dice: Dice, stations: list[Station]) -> None:
    """Cities by their numbers: on short wave in the older form, above it in the later one."""
    here = [station for station in stations if station.place]
    contacts = make_contacts(dice, here, 150, Plan(21, 24 * 60))
    start = datetime(2024, 10, 12, 21)
    log = rtcl_log(RTCL_V4, [rtcl_contact(contact, start) for contact in contacts])
    write_bytes("logs/rtcl_v4_sample.log", log)

    plan = Plan(21, 18 * 60, VHF_BANDS, VHF_BANDS)
    contacts = make_contacts(dice, here, 130, plan)
    start = datetime(2025, 7, 5, 21)
    log = rtcl_log(RTCL_V430, [rtcl_contact(contact, start) for contact in contacts])
    write_bytes("logs/rtcl_v430_sample.log", log)


def rtcl_contact(contact: Contact, start: datetime) -> RtclContact:
    mode = RTCL_MODES.get(contact.mode, "LSB" if contact.band in ("3.5", "7") else "USB")
    return RtclContact(
        when=start + timedelta(minutes=contact.minute, seconds=contact.minute * 7 % 60),
        call=contact.station.call,
        band=contact.band,
        counter=rtcl_counter(contact.frequency * 1000),
        mode=mode,
        second_mode="PH" if mode in ("LSB", "USB", "FM") else mode,
        sent=contact.report_sent,
        received=contact.report_received,
        sent_number="1107M",
        received_number=contact.station.number,
        operator=contact.operator,
        comment=contact.memo,
        multiplier=contact.station.place if contact.is_new_multi else "",
        dupe=int(contact.is_dupe),
        points=1,
    )


def make_ctestwin_sample(dice: Dice, stations: list[Station]) -> None:
    contacts = make_contacts(dice, stations, 140, Plan(first_hour=21, minutes=24 * 60))
    lines = [all_line(dice, contact, (2025, 4, 26, 21)) for contact in contacts]
    write_lines("logs/ctestwin_sample_lg8bridge.all", ["zLog for Windows ", *lines])


def write_bytes(name: str, raw: bytes) -> None:
    (DRIVE / name).write_bytes(raw)


def make_other_logs(allja_stations: list[Station], field_stations: list[Station]) -> None:
    """The stations are those of the zLog text logs, so that the sample masters know them."""
    make_cqww_sample(Dice(SEED))
    make_n1mm_sample(Dice(SEED + 1), allja_stations)
    make_zlo_sample(Dice(SEED + 2), allja_stations)
    make_rtcl_samples(Dice(SEED + 3), field_stations)
    make_ctestwin_sample(Dice(SEED + 4), allja_stations)
