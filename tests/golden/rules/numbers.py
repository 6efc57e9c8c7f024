"""The number at the head of a text. A text that begins with none is 0."""

import re
from decimal import Decimal

NUMBER = re.compile(r" *([0-9]+(?:\.[0-9]*)?|\.[0-9]+)")
DIGITS = re.compile(r" *([0-9]+)")
# Further digits behind a blank, and exponents.
GOES_ON = re.compile(r" +[0-9.]|[DE][-+]?[0-9]", re.IGNORECASE)


def leading_number(text: str) -> Decimal:
    found = NUMBER.match(text)
    if found is None:
        return Decimal(0)
    if GOES_ON.match(text, found.end()):
        raise ValueError(f"the rules leave open what number '{text}' is")
    return Decimal(found[1])


def leading_digits(text: str) -> int:
    found = DIGITS.match(text)
    return 0 if found is None else int(found[1])
