"""Numbers at the start of a text, and times as a logger keeps them in a number."""

import re
import struct
from datetime import datetime, timedelta
from fractions import Fraction

LEADING_NUMBER = re.compile(r"[+-]?([0-9]+(\.[0-9]*)?|\.[0-9]+)", re.ASCII)

DAY_ZERO = datetime(1899, 12, 30)
SECONDS_OF_DAY = 86400


def leading_number(text: str) -> Fraction:
    """0 where no number stands at the start."""
    text = text.replace(" ", "")
    match = LEADING_NUMBER.match(text)
    if match is None:
        return Fraction(0)
    if text[match.end() : match.end() + 1].upper() in ("E", "D"):
        raise ValueError(f"the rules leave open what number {text} is")
    return Fraction(match.group().rstrip("."))


def time_of_double(raw: bytes) -> datetime:
    """The nearest second of a time in days since 30 December 1899, its eight bytes as stored."""
    (days,) = struct.unpack("<d", raw)
    if days < 0:
        raise ValueError("the rules leave open what a time before the first day is")
    seconds = Fraction(days) * SECONDS_OF_DAY + Fraction(1, 2)
    return DAY_ZERO + timedelta(seconds=seconds.numerator // seconds.denominator)


def leading_digits(text: str) -> int:
    found = re.match(r" *([0-9]+)", text)
    return 0 if found is None else int(found[1])
