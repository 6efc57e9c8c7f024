#!/usr/bin/env python3
"""Writes the sample logs, masters and log book. The same files come out on every run.

Every call sign and person is made up by chance; a likeness to a real one is chance as well.
"""

from contacts import (
    AREAS,
    DX_CALLS,
    PREFECTURES,
    Plan,
    Station,
    make_call,
    make_contacts,
    make_stations,
)
from log_book import write_log_book
from masters import Person, home_calls, make_person, write_call_masters, write_fixed_masters
from other_logs import make_other_logs
from sample_files import Dice, write_lines
from zlog_text import all_line, txt_line

SEED = 20250427


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
    allja_stations = make_allja_sample()
    field_stations = make_field_sample()
    stations_of_logs = allja_stations + field_stations
    make_log_book(stations_of_logs, make_call_masters(stations_of_logs))
    make_other_logs(allja_stations, field_stations)
