"""The QSL marks: one mark for all contacts of a station, and the list of the marks as they were."""

from .disk import Drive, FieldReader, LineWriter
from .names import ORG_QSL, Names
from .options import Options
from .orders import HAMLOG_COLUMNS
from .rows import NO_QSL
from .sjis import trim

BASE, PORTABLE, DATE, TIME, QSL, REMARK_1, REMARK_2 = 0, 1, 2, 3, 10, 13, 14

FOREIGN_MARK = "$DX"


def turn_marks(files: Drive, names: Names, options: Options) -> None:
    if options.is_on("Check2"):
        turn(files, names, noted_is_no_qsl=False, turned_to=options.transfer_mark + "  ")
    elif options.is_on("Check3"):
        turn(files, names, noted_is_no_qsl=True, turned_to=NO_QSL + "  ")


def turn(files: Drive, names: Names, noted_is_no_qsl: bool, turned_to: str) -> None:
    contest = read_rows(files, names.contest_rows)
    contest = [[trim(row[BASE]), trim(row[PORTABLE]), *row[2:]] for row in contest]
    hamlog = read_rows(files, names.hamlog_rows)
    # The contest file alone says which stations are meant, for both files.
    noted = {station(row) for row in contest if row[QSL].startswith(NO_QSL) == noted_is_no_qsl}
    for path, rows in ((names.contest_rows, contest), (names.hamlog_rows, hamlog)):
        out = LineWriter(files, path)
        for row in rows:
            mark = turned_to if station(row) in noted else row[QSL]
            if mark.startswith(NO_QSL):
                mark = NO_QSL + "  "
            out.write_quoted(with_mark(row, mark))


def station(row: list[str]) -> str:
    base, portable = trim(row[BASE]), trim(row[PORTABLE])
    if portable == "":
        return base
    if FOREIGN_MARK in row[REMARK_1] or FOREIGN_MARK in row[REMARK_2]:
        return f"{portable}/{base}"
    return f"{base}/{portable}"


def write_original_marks(files: Drive, names: Names) -> None:
    out = LineWriter(files, ORG_QSL)
    for row in read_rows(files, names.contest_rows):
        out.write_quoted([row[BASE], row[PORTABLE], row[DATE], row[TIME], row[QSL][:1]])


def rewrite_letter(files: Drive, names: Names, letter: str) -> None:
    for path in (names.hamlog_rows, names.contest_rows):
        rows = read_rows(files, path)
        out = LineWriter(files, path)
        for row in rows:
            mark = row[QSL]
            if mark.startswith(NO_QSL):
                mark = letter + mark[1:2] + " "
            out.write_quoted(with_mark(row, mark))


def with_mark(row: list[str], mark: str) -> list[str]:
    return [*row[:QSL], mark, *row[QSL + 1 :]]


def read_rows(files: Drive, path: str) -> list[list[str]]:
    return list(FieldReader(files, path).records(HAMLOG_COLUMNS))
