"""The reader of ADIF logs as N1MM Logger writes them: each record becomes a line of zlog_1.txt."""

from dataclasses import dataclass

from .disk import LineWriter, read_lines
from .numbers import leading_number
from .options import Options
from .sjis import encode, trim, upper
from .text_logs import is_kept

END_OF_HEADER = "<EOH>"
END_OF_RECORD = "<EOR>"
MOST_HEADER_LINES = 20
MOST_RECORD_LINES = 5

LONGEST_FREQUENCY = 7
POWER_LETTERS = "HMLP"

# The values as they always were, with megahertz and gigahertz mixed.
FREQUENCY_OF_BAND = {
    "160M": "1.9", "80M": "3.5", "40M": "7", "30M": "10", "20M": "14", "17M": "18", "15M": "21",
    "12M": "24", "10M": "28", "6M": "50", "2M": "144", "1.25M": "220", "70CM": "432", "35M": "902",
    "23CM": "1300", "13CM": "2300", "9CM": "3300", "6CM": "5660", "3CM": "10000",
    "1.25CM": "24000", "6MM": "47", "4MM": "75", "2.5MM": "120", "2MM": "142", "1MM": "24",
}  # fmt: skip

# Megahertz, both ends included.
BAND_OF_FREQUENCY = [
    (1, 2, "160M"), (3, 4, "80M"), (7, 8, "40M"), (10, 11, "30M"), (14, 15, "20M"),
    (18, 19, "17M"), (21, 22, "15M"), (24, 25, "12M"), (28, 30, "10M"), (50, 54, "6M"),
    (144, 146, "2M"), (430, 440, "70CM"), (1200, 1300, "23CM"), (2300, 2450, "13CM"),
    (5600, 5850, "6CM"), (10000, 10250, "3CM"),
]  # fmt: skip


def accepts(raw: bytes) -> bool:
    return any("<CALL:" in upper(line) for line in read_lines(raw))


def read_adif(raw: bytes, options: Options, out: LineWriter) -> None:
    lines = behind_header(read_lines(raw))
    while lines:
        text = take_record(lines)
        if trim(text) == "":
            continue
        record = parse(text, options)
        # No tag fills the operator.
        if is_kept("", options):
            out.write_quoted([
                record.date[:4], record.date[4:6], record.date[6:8], record.time,
                trim(record.call), record.sent, record.received, record.band, record.mode, "", "",
                record.frequency, record.code,
            ])  # fmt: skip


def behind_header(lines: list[str]) -> list[str]:
    for count, line in enumerate(lines[:MOST_HEADER_LINES], 1):
        if END_OF_HEADER in upper(line):
            return lines[count:]
    if len(lines) < MOST_HEADER_LINES:
        raise ValueError("the rules leave open what a short file without an end of header does")
    return lines[MOST_HEADER_LINES:]


def take_record(lines: list[str]) -> str:
    text = ""
    for _ in range(MOST_RECORD_LINES):
        if not lines:
            break
        line = lines.pop(0)
        text += line
        if END_OF_RECORD in upper(line):
            break
    return text


@dataclass
class Record:
    call: str = ""
    frequency: str = ""
    band: str = ""
    mode: str = ""
    sent: str = ""
    received: str = ""
    date: str = ""
    time: str = ""
    code: str = ""


def parse(text: str, options: Options) -> Record:
    """Every piece is held against every tag, so one piece can fill several fields."""
    record = Record()
    # It gives no field: no tag is looked for that has a blank in its name.
    text = text.replace("<qso date:8:d>", "<QSO DATE:8>")
    for piece in text.split("<"):
        tags = upper(piece)
        behind_tag = piece[tags.find(">") + 1 :]
        value = trim(behind_tag)
        if "CALL:" in tags:
            record.call = value
        if "FREQ:" in tags:
            long = len(encode(value)) > LONGEST_FREQUENCY
            record.frequency = value[:LONGEST_FREQUENCY] if long else value
        if "BAND:" in tags:
            record.band = value
        # With every piece, so what comes first gives the other one a value for the time being.
        if record.band != "" and record.frequency == "":
            record.frequency = FREQUENCY_OF_BAND.get(trim(upper(record.band)), "")
        if record.band == "" and record.frequency != "":
            record.band = band_of(record.frequency)
        if "RST_SENT:" in tags:
            record.sent = value
        if "RST_RCVD:" in tags:
            record.received = value
        if "<MODE:" in "<" + tags:
            record.mode = behind_tag
        if "QSO_DATE:" in tags:
            record.date = value
        if "TIME_ON:4" in tags:
            record.time = value
        if "TIME_ON:6" in tags:
            record.time = value[:4]
        if "JCC:" in tags:
            record.code = value
        if "JCG:" in tags:
            record.code = value
        if "APP_N1MM_EXCHANGE1:" in tags:
            if options.is_on("Check27"):
                value = "".join(c for c in value if c not in POWER_LETTERS)
            if options.is_on("Check28"):
                record.code = value
    return record


def band_of(frequency: str) -> str:
    if frequency == "10G":
        return "3CM"
    megahertz = leading_number(frequency)
    return next((band for low, high, band in BAND_OF_FREQUENCY if low <= megahertz <= high), "")
