"""The history: which stations were worked before, on which bands and in which modes.

A contact's code is its band letter and its mode digit. The log book becomes bak_1.txt, a line for
each contact that counts; that one becomes the history file, a line for each call with all its
codes. The history file stays for later runs.
"""

from . import names as at
from .disk import NO_SUCH_FILE, Drive, FieldReader, LineWriter, RunTimeFailure, read_lines
from .log_book import MARKS, Record, read_log_book
from .numbers import leading_digits, leading_number
from .options import Options
from .settings import Environment, Period, Profile
from .sjis import trim
from .sorting import sort_lines

# In MHz, both ends with it.
BANDS = [
    ("A", 1, 2), ("B", 3, 4), ("C", 7, 8), ("D", 9, 11), ("E", 13, 15), ("F", 17, 19),
    ("G", 20, 22), ("H", 23, 25), ("I", 27, 30), ("J", 49, 54), ("K", 143, 146), ("L", 429, 440),
    ("M", 1119, 1300), ("N", 2399, 2450), ("O", 5399, 5850),
]  # fmt: skip
OTHER_BAND = "Z"

MODES = {
    "SSB": "1", "CW": "2", "AM": "3", "FM": "4", "STV": "5", "RTY": "6", "PSK": "7",
    "A3J": "1", "A1": "2", "A3": "3", "F3": "4",
}  # fmt: skip
OTHER_MODE = "9"

WORKED, SENT, RECEIVED = 1, 2, 3
# Section and key of the file time at which each history was read.
TIME_KEYS = {
    WORKED: ("Sansyou_files QSO", "hamlog_hdb_dir_FileDateTime_QSO"),
    SENT: ("Sansyou_files QSL_sent", "hamlog_hdb_dir_FileDateTime_QSL_sent"),
    RECEIVED: ("Sansyou_files QSL_rcvd", "hamlog_hdb_dir_FileDateTime_QSL_rcvd"),
}
# The character of the QSL marks that has to be there.
MARK_PLACES = {SENT: 2, RECEIVED: 3}

CALL_WIDTH = 13
# The key is the opening quote, the call and the code.
KEY_BYTES = 16
# The first column of neither is built as a contact's is, and that of the second says ZZZZZY.
SENTINELS = [
    ["YYYYYYE2       ", "YYYYYY       ", "E2"],
    ["ZZZZZYE2       ", "ZZZZZZ       ", "E2"],
]
LAST_LINE = "ZZZ/ZZZZZZ,E2"


def band_letter(frequency: str) -> str:
    megahertz = leading_number(frequency)
    return next((letter for letter, low, high in BANDS if low <= megahertz <= high), OTHER_BAND)


def mode_digit(mode: str) -> str:
    return MODES.get(trim(mode), OTHER_MODE)


def refresh(files: Drive, options: Options, environment: Environment) -> None:
    """Reads the log book if it is chosen and the history in use has to be made anew."""
    kind = options.choice("Option07")
    if kind == 0 or not options.is_log_book_chosen:
        return
    if not is_stale(files, kind, options, environment):
        return
    records = read_log_book(files.bytes_of(environment.log_book))
    write_worked(files, records, kind, options.period)
    write_worked_once(files)
    write_history(files, at.history(kind))


def is_stale(files: Drive, kind: int, options: Options, environment: Environment) -> bool:
    if options.is_on("Check18") or files.find(at.history(kind)) is None:
        return True
    if files.find(environment.log_book) is None:
        raise RunTimeFailure(NO_SUCH_FILE)
    stored = stored_time(files, kind)
    if stored == "":
        return True
    return stored != files.time_of(environment.log_book).strftime("%Y/%m/%d %H:%M:%S")


def stored_time(files: Drive, kind: int) -> str:
    if files.find(at.HISTORY_TIMES) is None:
        return ""
    return Profile(files.bytes_of(at.HISTORY_TIMES)).value(*TIME_KEYS[kind])


def write_worked(files: Drive, records: list[Record], kind: int, period: Period) -> None:
    out = LineWriter(files, at.WORKED)
    for record in records:
        # Each quote is doubled when it is fetched, and so takes two places.
        fields = [field.replace('"', '""') for field in record.fields]
        call, date, frequency, mode, marks = (fields[place] for place in (0, 1, 5, 6, MARKS))
        if record.is_deleted or not period.holds(full_date(date)) or not is_marked(marks, kind):
            continue
        call = (call + " " * CALL_WIDTH)[:CALL_WIDTH]
        code = band_letter(frequency) + mode_digit(mode)
        out.write_quoted([call + code, call, code])
    for sentinel in SENTINELS:
        out.write_quoted(sentinel)


def full_date(date: str) -> int:
    """The date as yyyymmdd, or what comes out if it is none."""
    digits = date.replace("/", "")
    century = "19" if leading_digits(digits[:2]) > 50 else "20"
    return leading_digits(trim(century + digits))


def is_marked(marks: str, kind: int) -> bool:
    if kind == WORKED:
        return True
    place = MARK_PLACES[kind]
    return trim(marks[place - 1 : place]) != ""


def write_worked_once(files: Drive) -> None:
    """Each pair of call and code once, as far as the first columns are the same."""
    sort_lines(files, at.WORKED, at.WORKED_SORTED, 1, KEY_BYTES)
    # No longer quoted: a comma in a call parts it.
    rows = [line.replace('"', "").split(",") for line in read_lines(files[at.WORKED_SORTED])]
    out = LineWriter(files, at.WORKED_ONCE)
    for row, next_row in zip(rows, rows[1:]):
        if next_row[0] != row[0]:
            out.write_quoted(row[1:3])
    out.write_quoted(rows[-1][1:3])


def write_history(files: Drive, path: str) -> None:
    out = LineWriter(files, files.find(path) or path)
    current, codes = None, ""
    for call, code in FieldReader(files, at.WORKED_ONCE).records(2):
        if current is not None and call != current:
            out.write_quoted([trim(current), trim(codes)])
            codes = ""
        current = call
        codes += code
    out.write_quoted([trim(current or ""), trim(codes)])
    out.write_line(LAST_LINE)


class History:
    def __init__(self, files: Drive, path: str):
        name = files.find(path)
        if name is None:
            raise RunTimeFailure(NO_SUCH_FILE)
        self._stations: list[tuple[str, str]] = []
        reader = FieldReader(files, name)
        while not reader.at_end():
            call, codes = reader.read(2)
            self._stations.append((call, codes))
        # The arrays are longer than what is in them, and a blank call finds the first empty place.
        self._stations.append(("", ""))

    def covers(self, call: str, frequency: str, mode: str, options: Options) -> bool:
        wanted = trim(call)
        if wanted.count("/") >= 2:
            wanted = wanted[: wanted.rindex("/")]
        codes = next((codes for station, codes in self._stations if station == wanted), None)
        if codes is None:
            return False

        same_band, same_mode = options.is_on("Check19"), options.is_on("Check20")
        letter, digit = band_letter(frequency), mode_digit(mode)
        if same_band and same_mode:
            return letter + digit in codes
        if same_band:
            return letter + "0" in "".join("0" if "0" <= c <= "9" else c for c in codes)
        if same_mode:
            return "0" + digit in "".join("0" if "A" <= c <= "Z" else c for c in codes)
        return True
