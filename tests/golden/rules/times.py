"""The time zone of a contact."""

from datetime import datetime, timedelta

from .calls import CallRules
from .disk import TYPE_MISMATCH, RunTimeFailure
from .options import Options

AS_LOGGED, ALL_JAPAN, ALL_UTC, DX_UTC, JA_JAPAN = range(5)


def zoned_time(
    date: str, time: str, call: str, options: Options, calls: CallRules
) -> tuple[str, str]:
    """Date and time of a contact; the time comes with its zone letter and goes with one."""
    in_japan_time = options.choice("Option1") == 1
    choice = options.choice("Option08")
    if choice == ALL_JAPAN and not in_japan_time:
        date, time = moved(date, time, 9, "J")
    if choice == ALL_UTC and in_japan_time:
        date, time = moved(date, time, -9, "U")

    # Whatever the choice: the next contact may fall back on this key.
    calls.take_ja_key(call)
    if choice == DX_UTC and "J" in time and not calls.is_japanese():
        date, time = moved(date, time, -9, "U")
    if choice == JA_JAPAN and "U" in time and calls.is_japanese():
        date, time = moved(date, time, 9, "J")
    return date, time


def moved(date: str, time: str, hours: int, letter: str) -> tuple[str, str]:
    parts = [date[:2], date[2:4], date[-2:], time[:2], time[2:4]]
    if not all(part.isascii() and part.isdigit() for part in parts):
        raise RunTimeFailure(TYPE_MISMATCH)
    year, month, day, hour, minute = (int(part) for part in parts)
    year += 2000 if year <= 50 else 1900
    try:
        at = datetime(year, month, day, hour, minute) + timedelta(hours=hours)
    except ValueError as error:
        raise RunTimeFailure(TYPE_MISMATCH) from error
    return at.strftime("%y%m%d"), at.strftime("%H%M") + letter


def date_text(date: str) -> str:
    return f"{date[:2]}/{date[2:4]}/{date[-2:]}"


def time_text(time: str) -> str:
    return f"{time[:2]}:{time[-3:]}"
