"""Stations worked once and stations worked more often: parted, sorted and merged."""

from . import names as at
from . import orders
from .disk import Drive, FieldReader, LineWriter, read_lines
from .names import Names
from .options import Options
from .orders import CONTEST_COLUMNS
from .sjis import mid_mbcs, trim
from .sorting import sort_lines
from .times import date_text, time_text

SENTINEL = "AAAAAA,,566A,,28,CW,,J, , ,001211,0218U,599,599,Taiwan,,,AAAAA,AAAAA"
SENTINEL_CALL = "AAAAAA"

SINGLE_CALL_WIDTH = 7
MULTIPLE_CALL_WIDTH = 14
KEY_WINDOW = 30  # narrower than the key of a multiple


def write_contest_rows(files: Drive, names: Names, options: Options) -> tuple[int, int, int]:
    """Gives the lines read, the multiples and the singles."""
    counts = part_stations(files)
    ordered = separated if options.choice("Option05") == 0 else together
    rows = ordered(files, options)
    out = LineWriter(files, names.contest_rows)
    for row in rows:
        if row[0] != SENTINEL_CALL:
            out.write_quoted(hamlog_row(row))
    return counts


def part_stations(files: Drive) -> tuple[int, int, int]:
    singles = LineWriter(files, at.SINGLES)
    multiples = LineWriter(files, at.MULTIPLES)
    lines = read_lines(files[at.SORT_OUT])
    single_count = multiple_count = 0
    previous = previous_group = ""
    in_group = False
    for line in lines:
        group = line.split(",")[0]
        if previous != "":
            if group == previous_group or in_group:
                multiples.write_line(previous)
                multiple_count += 1
                in_group = group == previous_group
            else:
                singles.write_line(previous)
                single_count += 1
        previous, previous_group = line, group
    if in_group:
        multiples.write_line(previous)
        multiple_count += 1
    else:
        singles.write_line(previous)
        single_count += 1
    singles.write_line(SENTINEL)
    multiples.write_line(SENTINEL)
    return len(lines), multiple_count, single_count


def separated(files: Drive, options: Options) -> list[list[str]]:
    out = LineWriter(files, at.SINGLES_UNSORTED)
    write_keyed(files, at.SINGLES, out, SINGLE_CALL_WIDTH, options)
    sort_lines(files, at.SINGLES_UNSORTED, at.SINGLES, 2, KEY_WINDOW)
    out = LineWriter(files, at.MULTIPLES_UNSORTED)
    write_keyed(files, at.MULTIPLES, out, MULTIPLE_CALL_WIDTH, options)
    sort_lines(files, at.MULTIPLES_UNSORTED, at.MULTIPLES, 2, KEY_WINDOW)

    singles = without_keys(files, at.SINGLES)
    if options.is_on("Check21"):
        singles = [with_locator(row, "#") for row in singles]
    return singles + without_keys(files, at.MULTIPLES)


def together(files: Drive, options: Options) -> list[list[str]]:
    out = LineWriter(files, at.SINGLES_UNSORTED)
    locator = "#" if options.is_on("Check21") else "" if options.is_on("Check14") else None
    write_keyed(files, at.SINGLES, out, SINGLE_CALL_WIDTH, options, locator)
    write_keyed(files, at.MULTIPLES, out, MULTIPLE_CALL_WIDTH, options)
    sort_lines(files, at.SINGLES_UNSORTED, at.SINGLES, 2, KEY_WINDOW)
    if options.choice("Option09") != orders.ASCII_ORDER:
        orders.sort_contest_rows(files, options.choice("Option09") == orders.JARL_REVERSED)
    return without_keys(files, at.SINGLES)


def write_keyed(
    files: Drive,
    source: str,
    out: LineWriter,
    call_width: int,
    options: Options,
    locator: str | None = None,
) -> None:
    for row in FieldReader(files, source).records(CONTEST_COLUMNS):
        key = sort_key(row, call_width, options)
        out.write_quoted([key, *(row if locator is None else with_locator(row, locator))])


def sort_key(row: list[str], call_width: int, options: Options) -> str:
    call = mid_mbcs(row[0] + " " * call_width, 1, call_width)
    frequency = trim(row[4])
    if not options.is_on("Check01") and "." in row[4]:
        frequency = row[4][:1]
    frequency = ("00000000" + frequency)[-9:]
    mode = (row[5] + " ")[:3]
    date, time = row[10], row[11]
    if options.choice("Option06") == 0:
        return call + frequency + mode + date + time
    return call + date + time + frequency + mode


def without_keys(files: Drive, path: str) -> list[list[str]]:
    return [row[1:] for row in FieldReader(files, path).records(CONTEST_COLUMNS + 1)]


def with_locator(row: list[str], locator: str) -> list[str]:
    return [*row[:3], locator, *row[4:]]


def hamlog_row(row: list[str]) -> list[str]:
    (base, portable, code, locator, frequency, mode, name, mark, _, _, date, time, sent, received,
     qth, remark_1, remark_2, call, call_again) = row  # fmt: skip
    # The sent mark does not come along.
    return [
        base, portable, date_text(date), time_text(time), sent, received, frequency, mode, code,
        locator, mark + "  ", name, qth, remark_1, remark_2, call, call_again,
    ]  # fmt: skip
