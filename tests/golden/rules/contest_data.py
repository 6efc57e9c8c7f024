"""The data file of a contest: which one it is, its layouts, and its searches."""

from collections.abc import Callable
from dataclasses import dataclass

from .code_masters import NOWHERE, Place
from .disk import OUT_OF_RANGE, Drive, FieldReader, RunTimeFailure, behind_headings
from .settings import OWN_MASTERS, Environment
from .sjis import byte_column, from_unicode, to_unicode, trim, upper

CONTEST_LIST = OWN_MASTERS + "contest_name.csv"
CONTEST_LIST_COLUMNS = 8
MOST_CONTESTS = 150
MOST_ROWS = 4500

EXACT_SEARCH = (
    "11", "12", "13", "21", "22", "23", "31", "32", "33", "41", "42", "51", "71",
)  # fmt: skip
PREFIX_SEARCH = ("64",)
LONG_PREFIXES = ("W1", "W0", "G1", "G0", "C1", "C0")

# Key, code and QTH of a line, by the file's extension.
LAYOUTS = {
    "dat": ((1, 11), (1, 7), (12, 28)),
    "mas": ((1, 6), (7, 7), (15, 28)),
    "mst": ((1, 6), (7, 7), (15, 28)),
}


@dataclass
class Contest:
    data_file: str
    flag: str  # the code type, then the kind of file


def choose_contest(files: Drive, environment: Environment, data_name: str) -> Contest | None:
    """The first contest of the list with this data file; None if its choice cannot be confirmed."""
    rows = list(FieldReader(files, CONTEST_LIST, skip=1).records(CONTEST_LIST_COLUMNS))
    if len(rows) > MOST_CONTESTS:
        raise ValueError("the rules do not know a contest list of this length")
    row = next((row for row in rows if row[2] == from_unicode(data_name)), None)
    if row is None:
        raise ValueError(f"no contest has the data file {data_name}")

    flag = row[4]
    # The dialog looks for the file where the second digit says, the run where the extension says.
    looked_for = environment.dat_folder if flag[1] in "01" else OWN_MASTERS
    if files.find(looked_for + data_name) is None or flag[0] == "0":
        return None
    used = environment.dat_folder if extension(data_name) == "dat" else OWN_MASTERS
    return Contest(used + to_unicode(row[2]).lower(), flag)


def extension(path: str) -> str:
    return path[-3:].lower()


class ContestTable:
    def __init__(self, files: Drive, contest: Contest):
        self._flag = contest.flag
        self._rows: list[tuple[str, Place]] = []
        layout = LAYOUTS.get(extension(contest.data_file))
        if layout is None:
            return
        lines = behind_headings(files.lines_of(contest.data_file), 1)
        if len(lines) > MOST_ROWS:
            raise RunTimeFailure(OUT_OF_RANGE)
        for line in lines:
            line = line.partition("\0")[0]
            key, code, qth = (byte_column(line, *column) for column in layout)
            self._rows.append((key, (code, qth)))

    def search_text(self, number: str) -> str:
        """What the code type leaves of a received number."""
        code_type = self._flag[0]
        if code_type == "3":
            return leading(number, is_digit)
        if code_type == "4":
            return leading(number, lambda character: not is_digit(character))
        return number

    def find(self, text: str) -> Place | None:
        """None where the flag asks for no search at all."""
        if self._flag in EXACT_SEARCH:
            return self._first(text)
        if self._flag in PREFIX_SEARCH:
            return self._first(text[: 3 if text[:2] in LONG_PREFIXES else 2])
        return None

    def _first(self, text: str) -> Place:
        # Unlike in the masters small letters are not capital ones.
        key = trim(text)
        return next((place for row_key, place in self._rows if row_key == key), NOWHERE)


def is_digit(character: str) -> bool:
    return "0" <= character <= "9"


def leading(text: str, wanted: Callable[[str], bool]) -> str:
    """The characters at the head of a text, up to the first that is not wanted."""
    for at, character in enumerate(text):
        if not wanted(character):
            return text[:at]
    return text
