"""The reader of zLog's text logs: .ALL and .TXT become zlog_1.txt.

Columns are byte positions counted from 1. A line of zlog_1.txt has thirteen fields: year, month,
day, time, call, report sent, report received, band, mode, operator, memo, frequency, number
received.
"""

from collections.abc import Callable

from .disk import INVALID_CALL, LineWriter, RunTimeFailure, read_lines
from .options import Options
from .sjis import decode, encode, mid_mbcs, trim

ALL_HEADING = "zLog for Windows"
TXT_HEADING = "mon day time  callsign"

ContactRule = Callable[[str, Options], list[str]]  # a line becomes thirteen fields

# The memo column begins behind this many characters.
ALL_MEMO_EDGE = 79
TXT_MEMO_EDGE = 72

ALL_PADDING = " " * 30
OPERATOR_AREA_BYTES = 120
DUPE_MARK = "-DUPE-"

# The last two are the short forms of RTTY; they become SSB as well.
SHORT_MODES = ("SS", "SB", "RT", "TY")


def accepts(path: str, raw: bytes) -> bool:
    """Whether a file opens as a text log: by its extension's first letter and its first line."""
    heading = {"a": ALL_HEADING, "t": TXT_HEADING}[path[-3].lower()]
    return read_lines(raw)[0].startswith(heading)


def read_text_log(path: str, raw: bytes, options: Options, out: LineWriter) -> None:
    if path[-3].lower() == "a":
        read_all_lines(read_lines(raw), options, out)
    else:
        write_contacts(read_lines(raw)[1:], txt_contact, options, out)


def read_all_lines(lines: list[str], options: Options, out: LineWriter) -> None:
    """The lines of an .ALL text; the first is a heading, whatever it says."""
    write_contacts(lines[1:], all_contact, options, out)


def write_contacts(
    lines: list[str], contact_of: ContactRule, options: Options, out: LineWriter
) -> None:
    for line in lines:
        fields = contact_of(line, options)
        if is_kept(operator=fields[9], options=options):
            out.write_quoted(fields)


def is_kept(operator: str, options: Options) -> bool:
    if options.is_on("Check15") and options.operator_name != "":
        return operator == options.operator_name
    return True


def all_contact(line: str, options: Options) -> list[str]:
    line += ALL_PADDING

    mode = mid_mbcs(line, 72, 3)
    if trim(mode) in SHORT_MODES:
        mode = "SSB"

    operator = ""
    if options.uses("OP %") or options.uses("OP") or options.is_on("Check15"):
        operator = get_operator(line)

    return [
        mid_mbcs(line, 1, 4),
        mid_mbcs(line, 6, 2),
        mid_mbcs(line, 9, 2),
        mid_mbcs(line, 12, 2) + mid_mbcs(line, 15, 2),
        trim(mid_mbcs(line, 18, 12)),
        trim(mid_mbcs(line, 31, 3)),
        trim(mid_mbcs(line, 43, 3)),
        trim(mid_mbcs(line, 67, 4)),
        mode,
        operator,
        get_memo(line, ALL_MEMO_EDGE, options),
        get_frequency(line, options),
        trim(mid_mbcs(line, 47, 8)),
    ]


def txt_contact(line: str, options: Options) -> list[str]:
    # A one-digit month lacks a column. Only such a line loses its blanks, at both ends.
    trimmed = trim(line)
    if len(trimmed.split(" ")[0]) == 1:
        line = "0" + trimmed

    operator = ""
    if options.uses("OP %") or (options.uses("OP") and options.is_on("Check15")):
        operator = get_operator(line)

    return [
        options.contest_year,
        two_digits(mid_mbcs(line, 1, 2)),
        two_digits(mid_mbcs(line, 5, 2)),
        mid_mbcs(line, 8, 4),
        trim(mid_mbcs(line, 13, 11)),
        trim(mid_mbcs(line, 24, 3)),
        trim(mid_mbcs(line, 37, 3)),
        trim(mid_mbcs(line, 58, 4)),
        mid_mbcs(line, 64, 3),
        operator,
        get_memo(line, TXT_MEMO_EDGE, options),
        get_frequency(line, options),
        trim(mid_mbcs(line, 40, 7)),
    ]


def two_digits(text: str) -> str:
    """A month or day with its leading zero. Blanks alone give "0"."""
    return ("0" + trim(text))[-2:]


def get_operator(line: str) -> str:
    """The text between the first pair of "%%" and the next "%", within the first 120 bytes."""
    area = trim(decode(encode(line)[:OPERATOR_AREA_BYTES]))
    before, mark, _ = area.partition("%")
    if not mark:
        return ""

    mark_byte = len(encode(before)) + 1
    behind = trim(mid_mbcs(area, mark_byte + 2))
    operator, mark, _ = behind.partition("%")
    return trim(operator) if mark else ""


def get_frequency(line: str, options: Options) -> str:
    return frequency_in(line) if options.is_on("Check01") else ""


def frequency_in(line: str) -> str:
    """Kilohertz in parentheses, in MHz. What has not 4 to 7 characters is no frequency."""
    if "(" not in line:
        return ""

    text = trim(line.split("(")[1].replace(")", ""))
    if not 4 <= len(text) <= 7:
        return ""
    # With the point set already, two points meet.
    return trim(f"{text[:-3]}.{text[-3:]}".replace("..", "."))


def get_memo(line: str, edge: int, options: Options) -> str:
    if not options.uses("memo") and not options.uses("memo="):
        return ""

    line = line.replace(DUPE_MARK, "")
    if len(line) < edge:
        raise RunTimeFailure(INVALID_CALL)
    # Characters, not bytes: a double-byte character in the columns moves the edge.
    text = line[edge:]

    if "%%" in text:
        text = trim(text[text.rindex("%%") + 2 :])
    if "(" in text:
        in_front = text[: text.index("(")]
        # The first ")", even one in front of the "("; without any the whole text comes again.
        behind = text[text.index(")") + 1 :] if ")" in text else text
        text = in_front + " " + behind
    if options.uses("memo=") and trim(text) != "":
        text = "memo=" + text
    return trim(text)
