#!/usr/bin/env python3
"""Writes the sample logs, masters and log book. The same files come out on every run.

Every call sign and person is made up by chance; a likeness to a real one is chance as well.
"""

from dataclasses import dataclass

from log_book import write_log_book
from masters import Person, home_calls, make_person, write_call_masters, write_fixed_masters
from sample_files import Dice, padded, write_lines

SEED = 20250427

# Prefecture numbers by call area. Area 8 counts its sub-prefectures.
PREFECTURES = {
    "1": "10 11 12 13 14 15 16 17".split(),
    "2": "18 19 20 21".split(),
    "3": "22 23 24 25 26 27".split(),
    "4": "31 32 33 34 35".split(),
    "5": "36 37 38 39".split(),
    "6": "40 41 42 43 44 45 46 47".split(),
    "7": "02 03 04 05 06 07".split(),
    "8": "101 103 104 106 108 110 112".split(),
    "9": "28 29 30".split(),
    "0": "08 09".split(),
}
# The busy areas come up more often.
AREAS = "1111111222333344556677788990"

PREFIXES = "JA JA JA JE JF JG JH JH JI JJ JK JL JM JN JO JP JQ JR".split()
DX_CALLS = (
    "KH2/JA1ZZ W6ZZA K7ZZB VK2ZZC DL1ZZZ UA0ZZD HL1ZZE BV2ZZF VE7ZZG ZL1ZZH DU1ZZI F5ZZJ".split()
)
OPERATORS = ["JA1ZZA", "JH1ZZB", "7K1XYZ"]

# (first, last) in kilohertz
FREQUENCIES = {
    ("3.5", "CW"): (3510, 3530),
    ("3.5", "SSB"): (3535, 3570),
    ("7", "CW"): (7010, 7030),
    ("7", "SSB"): (7060, 7140),
    ("7", "RTTY"): (7030, 7045),
    ("14", "CW"): (14050, 14080),
    ("14", "SSB"): (14250, 14300),
    ("14", "RTTY"): (14070, 14110),
    ("21", "CW"): (21050, 21080),
    ("21", "SSB"): (21350, 21450),
    ("21", "RTTY"): (21070, 21120),
    ("28", "CW"): (28050, 28080),
    ("28", "SSB"): (28600, 28850),
    ("50", "CW"): (50050, 50090),
    ("50", "SSB"): (50350, 50900),
    ("50", "FM"): (51000, 52000),
    ("144", "CW"): (144050, 144090),
    ("144", "SSB"): (144250, 144500),
    ("144", "FM"): (144750, 145600),
    ("430", "CW"): (430050, 430090),
    ("430", "SSB"): (430250, 430700),
    ("430", "FM"): (432100, 434000),
}
BANDS_BY_NIGHT = ["3.5", "3.5", "7", "7", "7"]
BANDS_BY_DAY = ["7", "7", "14", "21", "21", "28", "50", "50", "144", "430"]

MEMOS = [
    "QRP",
    "TNX 73",
    "ﾓｰﾋﾞﾙ",
    "ｱﾝﾃﾅ ﾀﾞｲﾎﾟｰﾙ",
    "移動運用",
    "表彰局",
    "ソーラー電源",
    "能登半島",
    "初交信",
    "富士山 5合目",
    "ポータブル",
    "IC-705",
    "NEW ONE?",
]


@dataclass(frozen=True)
class Plan:
    """A contest: its length and the bands of each hour."""

    first_hour: int
    minutes: int

    def bands_at(self, minute: int) -> list[str]:
        hour = (self.first_hour + minute // 60) % 24
        return BANDS_BY_DAY if 6 <= hour < 18 else BANDS_BY_NIGHT


@dataclass(frozen=True)
class Station:
    call: str
    place: str  # prefecture or city number; empty for a foreign station
    power: str

    @property
    def number(self) -> str:
        return self.place + self.power if self.place else "001"


@dataclass
class Contact:
    minute: int  # since the start of the contest
    station: Station
    band: str
    mode: str
    report_sent: str
    report_received: str
    operator: str
    frequency: int
    memo: str
    is_dupe: bool
    is_new_multi: bool


def make_call(dice: Dice, area: str) -> str:
    if area == "1" and dice.happens(15):
        return f"7{dice.pick('KLMN')}{1 + dice.below(4)}{letters(dice, 3)}"
    if dice.happens(10):
        return f"{dice.pick(['JA', 'JE', 'JH', 'JR'])}{area}{dice.pick('YZ')}{letters(dice, 2)}"
    return dice.pick(PREFIXES) + area + letters(dice, 3, first="ABCDEFGHIJKLMNOPQRSTUVWX")


def letters(dice: Dice, count: int, first: str = "ABCDEFGHIJKLMNOPQRSTUVWXYZ") -> str:
    rest = "ABCDEFGHIJKLMNOPQRSTUVWXYZ"
    return dice.pick(first) + "".join(dice.pick(rest) for _ in range(count - 1))


def make_stations(dice: Dice, count: int, portable_percent: int, with_cities: bool) -> list[Station]:
    stations = {}
    while len(stations) < count:
        area = dice.pick(AREAS)
        call = make_call(dice, area)
        if dice.happens(portable_percent):
            if dice.happens(25):
                call += "/P"
            else:
                area = dice.pick(AREAS)
                call += "/" + area
        place = dice.pick(PREFECTURES[area])
        if with_cities:
            # The cities of all sub-prefectures of area 8 begin with 01.
            prefecture = "01" if area == "8" else place
            place = prefecture + f"{1 + dice.below(12):02d}"
        stations[call] = Station(call, place, dice.pick("HMMMMLP"))
    return list(stations.values())


def make_contacts(dice: Dice, stations: list[Station], count: int, plan: Plan) -> list[Contact]:
    worked = set()
    multis = set()
    contacts = []
    times = sorted(dice.below(plan.minutes) for _ in range(count))
    band = plan.bands_at(0)[0]
    for minute in times:
        if dice.happens(30):
            band = dice.pick(plan.bands_at(minute))
        if band not in plan.bands_at(minute):
            band = dice.pick(plan.bands_at(minute))
        station = choose_station(dice, stations, worked, band)
        is_dupe = (station.call, band) in worked
        worked.add((station.call, band))
        multi = (station.place, band)
        is_new_multi = station.place != "" and multi not in multis
        multis.add(multi)

        modes = [m for b, m in FREQUENCIES if b == band]
        mode = "CW" if dice.happens(50) else dice.pick(modes)
        full = "59" if mode in ("SSB", "FM") else "599"
        weak = dice.pick(["57", "58", "55"]) + full[2:]
        low, high = FREQUENCIES[band, mode]
        operator = OPERATORS[minute * len(OPERATORS) // plan.minutes]
        contacts.append(
            Contact(
                minute=minute,
                station=station,
                band=band,
                mode=mode,
                report_sent=full,
                report_received=full if dice.happens(85) else weak,
                operator=operator,
                frequency=low + dice.below(high - low + 1),
                memo=dice.pick(MEMOS) if dice.happens(14) else "",
                is_dupe=is_dupe,
                is_new_multi=is_new_multi,
            )
        )
    return contacts


def choose_station(dice: Dice, stations: list[Station], worked: set, band: str) -> Station:
    """Mostly one that is new on the band, now and then a duplicate."""
    here = [s for s in stations if (s.call, band) in worked]
    if here and dice.happens(2):
        return dice.pick(here)
    elsewhere = [
        s for s in stations if s not in here and any(call == s.call for call, _ in worked)
    ]
    if elsewhere and dice.happens(45):
        return dice.pick(elsewhere)
    return dice.pick([s for s in stations if s not in here])


def memo_column(dice: Dice, contact: Contact) -> str:
    """Duplicate mark, operator, free text and frequency, in the order of a logger's habit.

    Now and then the free text stands behind the frequency, or there is no frequency.
    """
    words = ["-DUPE-"] if contact.is_dupe else []
    words.append(f"%%{contact.operator}%%")
    frequency = [f"({contact.frequency})"] if dice.happens(92) else []
    memo = [contact.memo] if contact.memo else []
    words += frequency + memo if dice.happens(8) else memo + frequency
    return " ".join(words)


def all_line(dice: Dice, contact: Contact, start: tuple[int, int, int, int]) -> str:
    year, month, day, hour = start
    hours, minute = divmod(contact.minute, 60)
    days, hour = divmod(hour + hours, 24)
    multi = contact.station.place if contact.is_new_multi else "-"
    columns = (
        f"{year:04d}/{month:02d}/{day + days:02d} {hour:02d}:{minute:02d} "
        + padded(contact.station.call, 12) + " "
        + padded(contact.report_sent, 3) + " "
        + padded("11M", 7) + " "
        + padded(contact.report_received, 3) + " "
        + padded(contact.station.number, 8)
        + padded(multi, 6)
        + padded("-", 6)
        + padded(contact.band, 4) + " "
        + padded(contact.mode, 4) + " "
        + ("0" if contact.is_dupe else "1").ljust(3)
    )
    assert len(columns) == 79
    return columns + memo_column(dice, contact)


def txt_line(dice: Dice, contact: Contact, start: tuple[int, int, int, int]) -> str:
    _, month, day, hour = start
    hours, minute = divmod(contact.minute, 60)
    days, hour = divmod(hour + hours, 24)
    multi = contact.station.place if contact.is_new_multi else ""
    columns = (
        f"{month:2d}  {day + days:2d} {hour:02d}{minute:02d} "
        + padded(contact.station.call, 11)
        + padded(contact.report_sent, 3) + " "
        + padded("1107M", 9)
        + padded(contact.report_received, 3) + " "
        + padded(contact.station.number, 6) + " "
        + padded(multi, 10)
        + padded(contact.band, 4) + "  "
        + padded(contact.mode, 4) + "  "
        + ("0" if contact.is_dupe else "1").rjust(3)
    )
    assert len(columns) == 72
    return columns + " " + memo_column(dice, contact)


def make_allja_sample() -> list[Station]:
    dice = Dice(SEED)
    stations = make_stations(dice, 150, portable_percent=12, with_cities=False)
    stations += [Station("JA1ZZ/1", "12", "P"), Station("JR8YYX/1", "14", "M")]
    stations += [Station("JA1YXX", "10", "M"), Station("JA1ZXX", "13", "H")]
    stations += [Station(call, "", "") for call in DX_CALLS]
    # 21:00 to 20:59 of the next day
    contacts = make_contacts(dice, stations, 340, Plan(first_hour=21, minutes=24 * 60))
    start = (2025, 4, 26, 21)
    lines = [all_line(dice, contact, start) for contact in contacts]
    write_lines("logs/allja_sample.all", ["zLog for Windows ", *lines])
    return stations


def make_field_sample() -> list[Station]:
    dice = Dice(SEED + 1)
    stations = make_stations(dice, 80, portable_percent=45, with_cities=True)
    # 21:00 to 14:59 of the next day, in a month of one digit
    contacts = make_contacts(dice, stations, 120, Plan(first_hour=21, minutes=18 * 60))
    start = (2025, 8, 2, 21)
    lines = [txt_line(dice, contact, start) for contact in contacts]
    heading = "mon day time  callsign      sent              rcvd      multi   MHz mode pts memo"
    write_lines("logs/field_sample.txt", [heading, *lines])
    return stations


def make_people(dice: Dice, calls: list[str]) -> list[Person]:
    by_call_area = PREFECTURES | {"8": ["01"]}
    return [make_person(dice, call, by_call_area) for call in home_calls(calls)]


def make_call_masters(stations: list[Station]) -> list[Person]:
    dice = Dice(SEED + 2)
    strangers = [make_call(dice, dice.pick(AREAS)) for _ in range(100)]
    people = make_people(dice, [station.call for station in stations] + strangers)
    write_call_masters(dice, people)
    return people


def make_log_book(stations: list[Station], people: list[Person]) -> None:
    dice = Dice(SEED + 3)
    known = {person.call for person in people}
    calls = [make_call(dice, dice.pick(AREAS)) for _ in range(650)]
    calls = [call for call in calls if call not in known]
    strangers = [call + "/" + dice.pick(AREAS) if dice.happens(8) else call for call in calls]
    everyone = people + make_people(dice, calls)
    write_log_book(dice, [station.call for station in stations], strangers, everyone)


if __name__ == "__main__":
    write_fixed_masters()
    stations_of_logs = make_allja_sample() + make_field_sample()
    make_log_book(stations_of_logs, make_call_masters(stations_of_logs))
