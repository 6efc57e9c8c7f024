"""The code stage without a master: zlog_1.txt becomes zlog_2.txt.

A line of zlog_2.txt has seventeen fields: date, time, call, report sent, report received, call
base, portable part, frequency, mode, two empty ones, code, QTH, number received, operator, memo,
call.
"""

from .calls import split_portable
from .disk import Drive, FieldReader, LineWriter
from .names import Names
from .options import Options
from .sjis import trim


def write_coded_lines(files: Drive, names: Names, options: Options) -> None:
    contacts = FieldReader(files, names.log_lines)
    out = LineWriter(files, names.coded_lines)
    while not contacts.at_end():
        out.write_quoted(coded_line(contacts.read(13), options))


def coded_line(contact: list[str], options: Options) -> list[str]:
    (year, month, day, time, call, sent, received, band, mode, operator, memo, exact,
     number) = contact  # fmt: skip
    base, portable = split_portable(call)
    frequency = exact if options.is_on("Check01") and exact != "" else band
    date = year[-2:] + ("0" + month)[-2:] + ("0" + day)[-2:]
    return [
        date, time, call, sent, received, base, portable, frequency, mode,
        "", "", "", "", trim(number), operator, memo, call,
    ]  # fmt: skip
