"""The contacts of the sample logs, before any logger has written them: all made up by chance."""

from dataclasses import dataclass

from sample_files import Dice

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
    ("1.9", "CW"): (1908, 1911),
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
    ("1200", "CW"): (1294000, 1294200),
    ("1200", "SSB"): (1294200, 1294500),
    ("1200", "FM"): (1294900, 1295800),
    ("2400", "CW"): (2424000, 2424100),
    ("2400", "FM"): (2426900, 2427300),
    ("5600", "CW"): (5760000, 5760050),
    ("5600", "FM"): (5760900, 5761100),
}
BANDS_BY_NIGHT = ("3.5", "3.5", "7", "7", "7")
BANDS_BY_DAY = ("7", "7", "14", "21", "21", "28", "50", "50", "144", "430")

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
    """A contest: its length, the bands of each hour, and its modes."""

    first_hour: int  # in Japan
    minutes: int
    by_day: tuple[str, ...] = BANDS_BY_DAY
    by_night: tuple[str, ...] = BANDS_BY_NIGHT
    cw_only: bool = False

    def bands_at(self, minute: int) -> tuple[str, ...]:
        hour = (self.first_hour + minute // 60) % 24
        return self.by_day if 6 <= hour < 18 else self.by_night


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
        mode = "CW" if plan.cw_only or dice.happens(50) else dice.pick(modes)
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
