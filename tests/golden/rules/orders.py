"""The JARL order of call signs, and the order of the Hamlog rows."""

from . import names as at
from .disk import Drive, FieldReader, LineWriter
from .names import Names
from .options import Options
from .sjis import mid_mbcs
from .sorting import sort_lines

CONTEST_COLUMNS = 19
HAMLOG_COLUMNS = 17

ASCII_ORDER, JARL_ORDER, JARL_REVERSED = range(3)


def jarl_key(call: str) -> str:
    if call[:1] == "7":
        group = "01"
    elif call[2:3] == "0":
        group = "10"
    else:
        group = "0" + call[2:3]  # one character short for a call of two characters
    return group + mid_mbcs(call + " " * 6, 1, 6)


def write_hamlog_rows(files: Drive, names: Names, options: Options) -> None:
    order = ASCII_ORDER
    if options.choice("Option05") == 1 and not options.is_on("Check08"):
        order = options.choice("Option09")

    ordered = at.ROWS_FOR_HAMLOG
    if order != ASCII_ORDER:
        reverse = order == JARL_REVERSED
        sort_with_jarl_key(files, at.ROWS_FOR_CONTEST, CONTEST_COLUMNS, reverse)
        if reverse:
            # Nobody reads it, and the end of the run deletes it: only a failure leaves it behind.
            copy_rows(files, at.HAMLOG_SORTED, names.reversed_rows, CONTEST_COLUMNS, keyed=True)
        sort_with_jarl_key(files, at.ROWS_FOR_HAMLOG, HAMLOG_COLUMNS, reverse)
        ordered = at.HAMLOG_SORTED
    copy_rows(files, ordered, names.hamlog_rows, HAMLOG_COLUMNS, keyed=order != ASCII_ORDER)


def sort_with_jarl_key(files: Drive, source: str, columns: int, reverse: bool) -> None:
    rows = FieldReader(files, source)
    out = LineWriter(files, at.HAMLOG_UNSORTED)
    for row in rows.records(columns):
        out.write_quoted([jarl_key(row[0]), *row])
    sort_lines(files, at.HAMLOG_UNSORTED, at.HAMLOG_SORTED, 2, 8, reverse)


def copy_rows(files: Drive, source: str, target: str, columns: int, keyed: bool) -> None:
    rows = FieldReader(files, source)
    out = LineWriter(files, target)
    for row in rows.records(columns + keyed):
        out.write_quoted(row[1:] if keyed else row)


def sort_contest_rows(files: Drive, reverse: bool) -> None:
    """Brings keyed rows that stand in key order into JARL order."""
    rows = FieldReader(files, at.SINGLES)
    out = LineWriter(files, at.JARL_UNSORTED)
    for row in rows.records(CONTEST_COLUMNS + 1):
        out.write_quoted([jarl_key(row[1]), *row[1:]])
    sort_lines(files, at.JARL_UNSORTED, at.SINGLES, 2, 8, reverse)
