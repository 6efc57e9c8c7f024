"""What the parts of a call sign say: portable part, Japanese or not, club or not."""

import re

from .sjis import upper

JAPANESE = re.compile(r"(7[J-N]|8[J-N]|J[A-S])[0-9]", re.ASCII)

# In this order, each deleted everywhere: so "/MM" leaves an "M" and "/QRPP" a "P".
TRAILING_MARKS = ("/P", "/M", "/MM", "/CM", "/QRP", "/QRPP")
# "/CM" at the end of a call starts nothing.
STARTING_MARKS = ("/P", "/MM", "/M", "/QRPP", "/QRP")
INNER_MARKS = ("/QRP/", "/QRPP/", "/M/", "/MM/", "/CM/", "/P/")

CLUB_SECOND_LETTERS = "ABCDEFGHIJKLMNOPQRS"


def split_portable(call: str) -> tuple[str, str]:
    if "/" not in call:
        return call, ""
    first, last = call.index("/"), call.rindex("/")
    if first == last:
        return call[:first], call[first + 1 :]
    return call[:first], call[first + 1 : last]


def is_japanese_call(call: str) -> bool:
    """The test of the code stages: the call as logged, small letters are none of it."""
    return JAPANESE.match(call) is not None


class CallRules:
    """The rules that remember something of the contacts before."""

    def __init__(self) -> None:
        self._ja_key = ""
        self._club_position = 0

    def take_ja_key(self, call: str) -> None:
        text = call
        if upper(call).endswith(STARTING_MARKS):
            text = upper(call)
            for mark in TRAILING_MARKS:
                text = text.replace(mark, "")
        for mark in INNER_MARKS:
            if mark in text:
                text = upper(text).replace(mark[:-1], "")

        if "/" not in text:
            self._ja_key = text
            return
        front, behind = text.split("/")[:2]
        if len(behind) == 1:
            self._ja_key = front
        elif len(behind) >= 2 and len(front) > len(behind):
            self._ja_key = behind
        elif len(behind) >= 2 and len(front) < len(behind):
            self._ja_key = front
        # Two pieces of one length, or nothing behind the slash: the key of the contact before.

    def is_japanese(self) -> bool:
        return is_japanese_call(self._ja_key)

    def is_club(self, base: str) -> bool:
        if len(base) == 5:
            return False
        if base[:1] == "J":
            if len(base) == 1:
                raise ValueError("the rules leave open what the club rule does with the call J")
            self._club_position = CLUB_SECOND_LETTERS.find(base[1]) + 1
        return self._club_position != 0 and base[3:4] in ("Y", "Z")
