"""The list of all calls by band and last letter."""

from . import names as at
from .disk import Drive, FieldReader, LineWriter
from .names import Names
from .sorting import sort_lines

# Band field, what the list shows, and the text in front of the sentinel's "ZZZZZ".
BANDS = [
    ("1   ", "1.9", "1.9 "),
    ("3   ", "3.5", "3.5 "),
    ("7   ", "7 ", "7   "),
    ("14  ", "14 ", "14  "),
    ("21  ", "21 ", "21  "),
    ("28  ", "28 ", "28  "),
    ("50  ", "50 ", "50  "),
    ("144 ", "144 ", "144 "),
    ("430 ", "430 ", "430 "),
    ("1200", "1200 ", "1200"),
    ("2400", "2400 ", "2400"),
    ("5600", "5600 ", "5600"),
    ("10G ", "10G ", "10G "),
]

SHORT_BANDS = {"120": "1200", "240": "2400", "560": "5600"}
SENTINEL_END = "ZZZZZ"
CELLS_IN_LINE = 6


def write_dupe_list(files: Drive, names: Names) -> None:
    sort_by_band_and_letter(files, names)
    files.delete(names.dupe_list)
    for lines in by_band(files):
        # Characters 5 to 9: the sentinel alone, or a call that looks like it.
        if lines[0][0][4:9] != SENTINEL_END:
            section = section_lines(lines)
            if names.dupe_list not in files:
                out = LineWriter(files, names.dupe_list)
            for line in section:
                out.write_line(line)


def sort_by_band_and_letter(files: Drive, names: Names) -> None:
    out = LineWriter(files, at.DUPES_UNSORTED)
    for contact in FieldReader(files, names.coded_lines).records(17):
        call, base, frequency = contact[2], contact[5], contact[7]
        frequency = SHORT_BANDS.get(frequency, frequency).split(".")[0]
        band = (frequency + " " * 4)[:4]
        letter = base[-1:]
        out.write_quoted([band + letter + (call + " " * 10)[:10], letter, call])
    # The window begins at the quote and so ends before the last character of the key.
    sort_lines(files, at.DUPES_UNSORTED, at.DUPES_SORTED, 1, 15)


def by_band(files: Drive) -> list[list[list[str]]]:
    """The lines of each band, its sentinel behind them."""
    lines: dict[str, list[list[str]]] = {band: [] for band, _, _ in BANDS}
    for line in FieldReader(files, at.DUPES_SORTED).records(3):
        band = line[0][:4]
        if band == "29  ":
            band = "28  "
        if band in lines:
            lines[band].append(line)
    for band, _, sentinel in BANDS:
        lines[band].append([sentinel + SENTINEL_END] * 3)
    return [lines[band] for band, _, _ in BANDS]


def section_lines(lines: list[list[str]]) -> list[str]:
    sentinel = lines[-1][0]
    shown = next(shown for _, shown, text in BANDS if text + SENTINEL_END == sentinel)
    unit = " Hz  ---" if shown == "10G " else " MHz  ---"
    section = [" " * 21 + "---  Check List  Band: " + shown + unit, ""]

    text = ""
    cells = 0
    kept_letter = None
    for _, letter, call in lines:
        cell = (call + " " * 12)[:12]
        if letter != kept_letter:
            if kept_letter is not None:
                section += [text, ""]
            text = f"[{letter}] {cell}"
            cells = 1
        elif cells == CELLS_IN_LINE:
            section.append(text)
            text = " " * 4 + cell
            cells = 1
        else:
            text += cell
            cells += 1
        kept_letter = letter
    # The text begun with the sentinel is not written.

    section.append(" " * 28 + f"---  Stations: {len(lines) - 1} ---")
    return section + [" " * 6] * 2
