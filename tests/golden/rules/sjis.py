"""Shift_JIS text, as Windows' code page 932 has it.

A text is a str whose characters are Shift_JIS codes, not Unicode: chr(0x41) is "A", chr(0xB1) the
half-width "ｱ", chr(0x955C) the two-byte "表". So find, replace and split work on whole characters,
a second byte 0x5C or 0x7C is never seen alone, and the bytes come out again as they went in.
Literals in ASCII stand for themselves; any other text from Python goes through from_unicode.
"""

LEAD_BYTES = frozenset([*range(0x81, 0xA0), *range(0xE0, 0xFD)])
SECOND_BYTES = frozenset([*range(0x40, 0x7F), *range(0x80, 0xFD)])


def code_rank(pair: bytes) -> int:
    """The order of preference in which Windows writes a character that the page holds twice."""
    lead = pair[0]
    if lead in (0xED, 0xEE):
        return 3  # the IBM characters as NEC selected them
    if lead in (0xFA, 0xFB, 0xFC):
        return 2  # the IBM characters
    if lead == 0x87:
        return 1  # the NEC special characters
    return 0  # JIS X 0208


def double_codes() -> dict[bytes, bytes]:
    """From each of the 398 codes that Windows reads but never writes to the one it writes.

    Python's codec decodes the page as Windows does. It encodes the IBM characters differently,
    which is why the choice is made here.
    """
    codes_of: dict[str, list[bytes]] = {}
    for lead in LEAD_BYTES:
        for second in SECOND_BYTES:
            pair = bytes([lead, second])
            character = pair.decode("cp932", errors="replace")
            if "\ufffd" not in character:
                codes_of.setdefault(character, []).append(pair)
    return {
        pair: min(codes, key=code_rank)
        for codes in codes_of.values()
        for pair in codes
        if pair != min(codes, key=code_rank)
    }


DOUBLE_CODES = double_codes()


def decode(raw: bytes) -> str:
    """The text of some bytes. A lead byte without a second byte is a character of one byte."""
    characters = []
    at = 0
    while at < len(raw):
        pair = raw[at : at + 2]
        if len(pair) == 2 and pair[0] in LEAD_BYTES and pair[1] in SECOND_BYTES:
            characters.append(chr(int.from_bytes(DOUBLE_CODES.get(pair, pair), "big")))
            at += 2
        else:
            characters.append(chr(raw[at]))
            at += 1
    return "".join(characters)


def encode(text: str) -> bytes:
    return b"".join(ord(c).to_bytes(width(c), "big") for c in text)


def from_unicode(text: str) -> str:
    return decode(text.encode("cp932"))


def to_unicode(text: str) -> str:
    return encode(text).decode("cp932")


def width(character: str) -> int:
    return 1 if ord(character) <= 0xFF else 2


def len_mbcs(text: str) -> int:
    """The length of a text in bytes."""
    return sum(width(c) for c in text)


def mid_mbcs(text: str, start: int, length: int | None = None) -> str:
    """The piece from byte `start` (counted from 1) on, `length` bytes long at the most.

    No character is cut. One that lies across the start is left out and the piece begins behind it,
    with the full length still to come; one that lies across the end is left out too.
    """
    begin = 0
    passed = 0
    while begin < len(text) and passed < start - 1:
        passed += width(text[begin])
        begin += 1
    if length is None:
        return text[begin:]

    end = begin
    taken = 0
    while end < len(text) and taken + width(text[end]) <= length:
        taken += width(text[end])
        end += 1
    return text[begin:end]


def trim(text: str) -> str:
    """Without the blanks at both ends. Only 0x20 is a blank."""
    return text.strip(" ")


def upper(text: str) -> str:
    # str.upper would change half-width katakana, which are no letters here.
    return "".join(chr(ord(c) - 32) if "a" <= c <= "z" else c for c in text)


def byte_column(line: str, first: int, length: int) -> str:
    """A column of a fixed width, without the blanks around its text."""
    return trim(mid_mbcs(line, first, length))
