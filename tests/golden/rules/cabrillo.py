"""The reader of Cabrillo logs: their QSO lines become zlog_1.txt."""

from .disk import OUT_OF_RANGE, LineWriter, RunTimeFailure, read_lines
from .numbers import leading_number
from .options import Options
from .sjis import from_unicode
from .text_logs import is_kept

HEADING = "START-OF-LOG:"
CONTACT = "QSO:"

PASSES = 11  # so 2048 blanks become one, and of more than that some are left
WIDE_BLANK = from_unicode("　")

LEAST_TOKENS = 11
LEAST_DATE_PARTS = 3
MODES = {"PH": "SSB", "RY": "RTY"}

# Kilohertz, both ends included. The lower end of 1200 is old and stays.
BANDS = [
    (1000, 2000, "1.9"),
    (3000, 4000, "3.5"),
    (7000, 8000, "7"),
    (9000, 11000, "10"),
    (13000, 15000, "14"),
    (17000, 19000, "18"),
    (20000, 22000, "21"),
    (23000, 25000, "24"),
    (27000, 30000, "28"),
    (49000, 54000, "50"),
    (143000, 146000, "144"),
    (429000, 440000, "430"),
    (1119000, 1300000, "1200"),
    (2399000, 2450000, "2400"),
    (5399000, 5850000, "5600"),
]


def accepts(raw: bytes) -> bool:
    """The first line is the only test."""
    lines = read_lines(raw)
    if not lines:
        raise ValueError("the rules leave open what an empty file does")
    return HEADING in lines[0]


def read_cabrillo(raw: bytes, options: Options, out: LineWriter) -> None:
    band = ""
    # The operator of the line before would stand where a line holds a "%", but nothing ever sets
    # one, so there is none.
    operator = ""
    for line in read_lines(raw)[1:]:
        if CONTACT not in line:
            continue
        tokens = one_blank_between(line).split(" ")
        if len(tokens) < LEAST_TOKENS:
            raise RunTimeFailure(OUT_OF_RANGE)
        _, frequency, mode, date, time, _, sent, _, call, received, number = tokens[:LEAST_TOKENS]
        parts = date.split("-")
        if len(parts) < LEAST_DATE_PARTS:
            raise RunTimeFailure(OUT_OF_RANGE)
        band = band_of(frequency, before=band)
        if is_kept(operator, options):
            out.write_quoted([
                *parts[:LEAST_DATE_PARTS], time, call, sent, received, band,
                MODES.get(mode, mode), operator, "", "", number,
            ])  # fmt: skip


def one_blank_between(line: str) -> str:
    for _ in range(PASSES):
        line = line.replace("  ", " ").replace(WIDE_BLANK, " ").replace("\t", " ")
    return line


def band_of(frequency: str, before: str) -> str:
    """Without a row the band of the contact before."""
    kilohertz = leading_number(frequency)
    return next((band for low, high, band in BANDS if low <= kilohertz <= high), before)
