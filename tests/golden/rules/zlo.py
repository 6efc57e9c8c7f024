"""The reader of zLog's binary logs: the contest from the first record, the contacts behind it.

Records have 256 bytes; what is left at the end of the file is no record. A text is a byte with its
length and a space of fixed size behind it.
"""

from dataclasses import dataclass

from .contest_data import CONTEST_LIST, CONTEST_LIST_COLUMNS, Contest, extension
from .disk import Drive, FieldReader, LineWriter
from .numbers import time_of_double
from .options import Options
from .settings import OWN_MASTERS, Environment
from .sjis import decode, from_unicode, mid_mbcs, to_unicode, trim
from .text_logs import frequency_in, is_kept

RECORD_BYTES = 256

# Where the length byte of a text stands, and the size of its space.
CONTEST_NAME = (175, 60)
CALL = (8, 12)
RECEIVED_NUMBER = (52, 9)
OPERATOR = (160, 14)
MEMO = (175, 67)

TIME = 0
REPORT_SENT = 84
REPORT_RECEIVED = 86
MODE = 92
BAND = 93

MODES = ["CW", "SSB", "FM", "AM", "RTY", "Other"]
BANDS = "1.9 3.5 7 10 14 18 21 24 28 50 144 430 1200 2400 5600 10G".split()

SETTINGS_FILE = "Fham.cfg"
NAME_OF_SETTINGS_FILE = "Nifty FHAMコンテスト"
NO_CODE = "00"
NO_CODE_BUT_TAKEN = "テレコムＱＳＯパーティー"


@dataclass
class Header:
    contest_name: str = ""  # for the remarks; empty where the header was not read
    contest: Contest | None = None


def records_of(raw: bytes) -> list[bytes]:
    count = len(raw) // RECORD_BYTES
    return [raw[at * RECORD_BYTES : (at + 1) * RECORD_BYTES] for at in range(count)]


def text_at(record: bytes, place: tuple[int, int]) -> str:
    """A length beyond the space means all of it. No character is cut."""
    at, space = place
    return mid_mbcs(decode(record[at + 1 : at + 1 + space]), 1, min(record[at], space))


def read_header(files: Drive, environment: Environment, raw: bytes) -> Header:
    """Without a contest where a box refuses the log, or where no data file comes out."""
    records = records_of(raw)
    if not records:
        raise ValueError("the rules leave open what a log without a header does")
    name = trim(text_at(records[0], CONTEST_NAME))
    if name == "":
        if records[0][CONTEST_NAME[0]] != 0:
            raise ValueError("the rules leave open what a blank contest name does")
        return Header()

    found = False
    row: list[str] = []
    # The heading line is a row like the others here.
    for row in FieldReader(files, CONTEST_LIST).records(CONTEST_LIST_COLUMNS):
        if row[3] == "":
            raise ValueError("the rules leave open what a contest without a name does")
        if trim(row[3]) in name:
            found = True
            break
    data_name, contest_name, flag = row[2], trim(row[3]), row[4]
    if contest_name == SETTINGS_FILE:
        name = contest_name = from_unicode(NAME_OF_SETTINGS_FILE)
    if not found:
        return Header()
    if flag == NO_CODE and contest_name != from_unicode(NO_CODE_BUT_TAKEN):
        return Header()
    if "no.dat" in data_name:
        return Header(name)
    return Header(name, Contest(data_path(files, environment, to_unicode(data_name)), flag))


def data_path(files: Drive, environment: Environment, data_name: str) -> str:
    kind = extension(data_name)
    if kind not in ("dat", "mas", "mst") or data_name.lower() != data_name:
        raise ValueError(f"the rules leave open where the run looks for {data_name}")
    path = (environment.dat_folder if kind == "dat" else OWN_MASTERS) + data_name
    if files.find(path) is None:
        raise ValueError(f"the rules leave open the exit status of a run without {path}")
    return path


def read_zlo(raw: bytes, options: Options, out: LineWriter) -> None:
    mode = band = ""
    for record in records_of(raw)[1:]:
        # A value outside its table leaves what the contact before had.
        if record[MODE] < len(MODES):
            mode = MODES[record[MODE]]
        if record[BAND] < len(BANDS):
            band = BANDS[record[BAND]]
        at = time_of_double(record[TIME : TIME + 8])

        operator = ""
        if options.uses("OP %") or options.uses("OP") or options.is_on("Check15"):
            operator = text_at(record, OPERATOR)

        memo = text_at(record, MEMO)
        frequency = band
        if options.is_on("Check01") and "(" in memo and "(0)" not in memo:
            piece = bracketed_piece(memo)
            frequency = trim(frequency_in(piece))
            if piece != "":
                memo = memo.replace(piece, "")
            memo = memo.replace("()", " ")

        if is_kept(operator, options):
            out.write_quoted([
                at.strftime("%Y"), at.strftime("%m"), at.strftime("%d"), at.strftime("%H%M"),
                text_at(record, CALL), report_at(record, REPORT_SENT),
                report_at(record, REPORT_RECEIVED), band, mode, operator, memo, frequency,
                text_at(record, RECEIVED_NUMBER),
            ])  # fmt: skip


def report_at(record: bytes, at: int) -> str:
    return str(record[at + 1] * 256 + record[at])


def bracketed_piece(memo: str) -> str:
    """From the first "(" to the first ")", if that stands behind it."""
    first, last = memo.index("("), memo.find(")")
    return memo[first : last + 1]
