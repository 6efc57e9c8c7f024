"""What the makers of the samples share: repeatable chance, and lines counted in bytes."""

import random
from pathlib import Path

# Drive C: of the samples.
DRIVE = Path(__file__).resolve().parent


class Dice:
    """Chance that falls the same way in every version of Python."""

    def __init__(self, seed: int):
        self._random = random.Random(seed)

    def below(self, limit: int) -> int:
        return int(self._random.random() * limit)

    def pick(self, things):
        return things[self.below(len(things))]

    def happens(self, percent: int) -> bool:
        return self.below(100) < percent


def padded(text: str, width: int) -> str:
    """Filled with blanks to a width counted in bytes of Shift_JIS."""
    missing = width - len(text.encode("cp932"))
    assert missing >= 0, f"{text} is wider than {width}"
    return text + " " * missing


def write_lines(name: str, lines: list[str]) -> None:
    """Writes a file of drive C:, Shift_JIS with CR LF."""
    path = DRIVE / name
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes("".join(line + "\r\n" for line in lines).encode("cp932"))
