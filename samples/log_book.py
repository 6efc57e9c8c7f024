"""Writes the sample log book: the contacts of a station in 26 years, with many that the logs have.

It comes as the log book's own table and as its export in quoted rows.
"""

import sys
from datetime import date, timedelta

from masters import Person, locator
from sample_files import DRIVE, Dice

# The writer of tables is the one of the tests' log books.
sys.path.append(str(DRIVE.parent / "tests" / "golden"))

from tables import Contact, own_table, quoted_rows  # noqa: E402

FOLDER = DRIVE / "hamlog"

FIRST_DAY = date(1999, 1, 2)
LAST_DAY = date(2025, 4, 20)  # in front of the first log

KNOWN_PERCENT = 55  # stations of the logs that were worked before
MOST_CONTACTS = 5

# What the station likes best comes up more often.
BANDS = "1.9 3.5 3.5 7 7 7 7 7 10 14 14 18 21 21 21 24 28 50 50 50 144 430 430 1200".split()
MODES = {
    "1.9": ["CW"],
    "10": ["CW"],
    "50": ["SSB", "SSB", "CW", "FM", "AM"],
    "144": ["FM", "SSB", "CW"],
    "430": ["FM", "FM", "SSB", "CW"],
    "1200": ["FM"],
}
MODES_ELSEWHERE = ["CW", "CW", "CW", "SSB", "SSB", "RTTY", "FT8"]
EXACT_FREQUENCIES = {"7": ["7.012", "7.041", "7.085"], "50": ["50.085", "50.22"], "14": ["14.05"]}

REMARKS = [
    "ALL JA", "JARL 6m AND DOWN", "フィールドデー", "全市全郡", "QSO パーティ", "能登半島から",
    "表彰局", "ｱﾝﾃﾅ ﾀﾞｲﾎﾟｰﾙ", "初交信", "eQSL",
]  # fmt: skip


def write_log_book(
    dice: Dice, calls_of_logs: list[str], strangers: list[str], people: list[Person]
) -> None:
    known = [call for call in dict.fromkeys(calls_of_logs) if dice.happens(KNOWN_PERCENT)]
    persons = {person.call: person for person in people}
    contacts: list[tuple[date, Contact]] = []
    for call in known + strangers:
        for _ in range(1 + dice.below(MOST_CONTACTS)):
            day = FIRST_DAY + timedelta(days=dice.below((LAST_DAY - FIRST_DAY).days + 1))
            contacts.append((day, make_contact(dice, call, day, persons.get(call.split("/")[0]))))
    records = [contact for _, contact in sorted(contacts, key=lambda c: (c[0], c[1].time))]
    FOLDER.mkdir(exist_ok=True)
    (FOLDER / "Hamlog.hdb").write_bytes(own_table(records))
    (FOLDER / "Hamlog.csv").write_bytes(quoted_rows(records))


def make_contact(dice: Dice, call: str, day: date, person: Person | None) -> Contact:
    band = dice.pick(BANDS)
    mode = dice.pick(MODES.get(band, MODES_ELSEWHERE))
    if mode == "FT8" and day.year < 2018:
        mode = "SSB"  # nobody had it yet
    frequency = band
    if band in EXACT_FREQUENCIES and dice.happens(20):
        frequency = dice.pick(EXACT_FREQUENCIES[band])
    report = "59" if mode in ("SSB", "FM", "AM") else "599"
    zone = "J" if person is not None else "U"
    return Contact(
        call=call,
        date=day.strftime("%Y/%m/%d"),
        time=f"{dice.below(24):02d}:{dice.below(60):02d}{zone}",
        his=report,
        my=report if dice.happens(80) else "57" + report[2:],
        frequency=frequency,
        mode=mode,
        code=person.home.number if person is not None else "",
        locator=locator(person.home) if person is not None and dice.happens(50) else "",
        qsl=make_marks(dice),
        name=person.name if person is not None and dice.happens(90) else "",
        qth=person.home.name if person is not None else "",
        remark_1=dice.pick(REMARKS) if dice.happens(25) else "",
        remark_2=person.remarks if person is not None else "",
        is_deleted=dice.below(200) == 0,
    )


def make_marks(dice: Dice) -> str:
    """How the card goes, whether one was sent, and whether one came."""
    way = dice.pick("JJJJJJJJN ")
    sent = "*" if way == "J" and dice.happens(70) else " "
    received = "*" if dice.happens(40) else " "
    return way + sent + received
