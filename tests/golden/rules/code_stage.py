"""The code stage: zlog_1.txt becomes zlog_2.txt, with code and QTH where a master has the number.

A line of zlog_2.txt has seventeen fields: date, time, call, report sent, report received, call
base, portable part, frequency, mode, two empty ones, code, QTH, number received, operator, memo,
call.
"""

from .calls import is_japanese_call, split_portable
from .code_masters import HL_CODE_QTH, NOWHERE, POSTAL_QTH, CodeMaster, Place
from .contest_data import Contest, ContestTable, is_digit, leading
from .disk import Drive, FieldReader, LineWriter
from .names import Names
from .options import CONTEST_DATA, HL_CODE, NO_CODE_STAGE, POSTAL, Options
from .settings import PROGRAM_FOLDER, Environment
from .sjis import mid_mbcs, to_unicode, trim

SHORT_QTH_BYTES = 14


def write_coded_lines(
    files: Drive, names: Names, options: Options, environment: Environment, contest: Contest | None
) -> None:
    contacts = FieldReader(files, names.log_lines)
    out = LineWriter(files, names.coded_lines)
    places = places_of(files, options, environment, contest)
    while not contacts.at_end():
        out.write_quoted(coded_line(contacts.read(13), options, places))


def coded_line(contact: list[str], options: Options, places: "Places") -> list[str]:
    (year, month, day, time, call, sent, received, band, mode, operator, memo, exact,
     number) = contact  # fmt: skip
    base, portable = split_portable(call)
    frequency = exact if options.is_on("Check01") and exact != "" else band
    date = year[-2:] + ("0" + month)[-2:] + ("0" + day)[-2:]
    code, qth = places.find(call, number)
    stage = options.choice("Option02")
    if stage == NO_CODE_STAGE:
        number = trim(number)
    if stage == POSTAL:
        operator = ""  # does not survive this stage
    return [
        date, time, call, sent, received, base, portable, frequency, mode,
        "", "", code, qth, number, operator, memo, call,
    ]  # fmt: skip


def places_of(
    files: Drive, options: Options, environment: Environment, contest: Contest | None
) -> "Places":
    stage = options.choice("Option02")
    if stage == HL_CODE:
        return HlCodePlaces(files)
    if stage == POSTAL:
        return PostalPlaces(files, environment)
    if stage == CONTEST_DATA:
        assert contest is not None
        table = ContestTable(files, contest)
        return ContestPlaces(table, keeps_code=options.choice("Option04") == 1)
    return Places()


class Places:
    """What a code stage knows of the places of the contacts: without a master nothing."""

    def find(self, call: str, number: str) -> Place:
        return NOWHERE


class HlCodePlaces(Places):
    """Of every call, a foreign one too."""

    def __init__(self, files: Drive):
        self._master = CodeMaster(files, PROGRAM_FOLDER + "hl_code.mas", HL_CODE_QTH)

    def find(self, call: str, number: str) -> Place:
        return self._master.find(leading(number, is_digit))


class PostalPlaces(Places):
    """The first character of the number names the file, its last six are the key."""

    def __init__(self, files: Drive, environment: Environment):
        self._files = files
        self._folder = environment.postal_folder

    def find(self, call: str, number: str) -> Place:
        if not is_japanese_call(call) or self._folder is None:
            return NOWHERE
        number = trim(number)
        file = f"{self._folder}yubin_m{to_unicode(number[:1])}.mas"
        code, qth = CodeMaster(self._files, file, POSTAL_QTH).find(number[-6:])
        return code, trim(mid_mbcs(qth, 1, SHORT_QTH_BYTES))


class ContestPlaces(Places):
    """Without a search a contact has the code and the QTH of the one before it."""

    def __init__(self, table: ContestTable, keeps_code: bool):
        self._table = table
        self._keeps_code = keeps_code
        self._place = NOWHERE

    def find(self, call: str, number: str) -> Place:
        text = self._table.search_text(trim(number))
        found = self._table.find(text) if is_japanese_call(call) else None
        if found is not None:
            self._place = found
        if text == "":
            self._place = NOWHERE
        if not self._keeps_code:
            self._place = ("", self._place[1])
        return self._place
