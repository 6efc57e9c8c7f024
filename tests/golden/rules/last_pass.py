"""The last pass: Hamlog rows become the result rows of fifteen columns."""

from .disk import Drive, FieldReader, LineWriter
from .marks import FOREIGN_MARK
from .options import Options
from .orders import HAMLOG_COLUMNS
from .sjis import trim

LONG_MODES = {
    "RTY": "RTTY",
    "TTY": "RTTY",
    "STV": "SSTV",
    "SST": "SSTV",
    "PSK": "PSK31",
    "PS3": "PSK31",
}


def write_result(
    files: Drive, source: str, target: str, options: Options, no_qsl_letter: str
) -> int:
    """Gives the number of rows with a name."""
    named = 0
    out = LineWriter(files, target)
    for row in FieldReader(files, source).records(HAMLOG_COLUMNS):
        named += trim(row[11]) != ""
        out.write_quoted(result_row(row, options, no_qsl_letter))
    return named


def result_row(row: list[str], options: Options, no_qsl_letter: str) -> list[str]:
    (_, _, date, time, sent, received, frequency, mode, code, locator, qsl, name, qth,
     remark_1, remark_2, own_call, call) = row  # fmt: skip
    if FOREIGN_MARK in remark_1 or FOREIGN_MARK in remark_2:
        remark_1 = remark_1.replace(FOREIGN_MARK, "")
        remark_2 = remark_2.replace(FOREIGN_MARK, "")
    qsl = qsl.replace(no_qsl_letter + options.sent_mark, no_qsl_letter + " ")
    if own_call != "":
        remark_1 = remark_1.replace(own_call, "")
        remark_2 = remark_2.replace(own_call, "")
    # In Rmks 2 a mark that comes together only now stays.
    remark_1 = remark_1.replace(FOREIGN_MARK, "")
    return [
        call, date, time, sent, received, frequency, LONG_MODES.get(mode, mode), code, locator, qsl,
        name, qth, remark_1, remark_2, "8" if "U" in time else "0",
    ]  # fmt: skip
