"""The sources of name, code and QTH of a row, and which of them is taken.

The sources are what the code stage found ("dat_mas"), name_mas.txt, qth_mas.txt and one of the user
texts. An entry is empty where its source is not asked or finds nothing.
"""

from .call_masters import QTH_MASTER_COLUMNS, TEXT_COLUMNS, CallMaster, Entry
from .disk import Drive
from .options import Options
from .settings import Environment

DAT_MAS, NAME_MAS, QTH_MAS, TEXT_DATA = "dat_mas", "name_mas", "qth_mas", "Text_data"

PLACES_LOOKED_AT = 3
SIX_CHARACTERS = 6

# The boxes that have to be on for a source to give a column; dat_mas has a rule of its own.
NEEDED_BOXES = {
    "name": {
        NAME_MAS: ["Check03"],
        QTH_MAS: ["Check6", "Check14"],
        TEXT_DATA: ["Check8", "Check11"],
    },
    "code": {
        NAME_MAS: ["Check03"],
        QTH_MAS: ["Check4", "Check14"],
        TEXT_DATA: ["Check8", "Check13"],
    },
    "qth": {
        NAME_MAS: ["Check03"],
        QTH_MAS: ["Check7", "Check14"],
        TEXT_DATA: ["Check8", "Check9"],
    },
}


class Sources:
    def __init__(self, files: Drive, options: Options, environment: Environment):
        self._files = files
        self._options = options
        self._qth_mas_path = environment.qth_mas if options.is_on("Check14") else None
        self._qth_mas: CallMaster | None = None
        self._text: CallMaster | None = None
        # In front of everything else that the run does.
        self._name_mas = None
        if options.is_on("Check03") and environment.name_mas is not None:
            self._name_mas = CallMaster(files, environment.name_mas, TEXT_COLUMNS)
        self.text_hits = 0

    def load_for_rows(self) -> None:
        if self._qth_mas_path is not None:
            self._qth_mas = CallMaster(self._files, self._qth_mas_path, QTH_MASTER_COLUMNS)
        if self._options.user_text is not None:
            self._text = CallMaster(self._files, self._options.user_text, TEXT_COLUMNS)

    def name_mas(self, base: str) -> Entry:
        found = None if self._name_mas is None else self._name_mas.find(base)
        return found or Entry()

    def qth_mas(self, base: str, portable: str) -> Entry:
        found = None if self._qth_mas is None else self._qth_mas.find(base)
        if found is None:
            return Entry()
        moved = self._options.is_on("Check16") and portable != ""
        return Entry(
            name=found.name if self._options.is_on("Check6") else "",
            code=found.code if self._options.is_on("Check4") and not moved else "",
            qth=found.qth if self._options.is_on("Check7") and not moved else "",
            locator=found.locator if self._options.is_on("Check5") and not moved else "",
        )

    def text_data(self, base: str, portable: str) -> Entry:
        found = None if self._text is None else self._text.find(base)
        if found is None:
            return Entry()
        self.text_hits += 1
        moved = self._options.is_on("Check17") and portable != ""
        return Entry(
            name=found.name if self._options.is_on("Check11") else "",
            code=found.code if self._options.is_on("Check13") and not moved else "",
            qth=found.qth if self._options.is_on("Check9") and not moved else "",
            remark=found.remark if self._options.is_on("Check12") else "",
        )

    def dat_mas(self, code: str, qth: str) -> Entry:
        return Entry(code=code, qth=qth) if self._options.counts_code_stage else Entry()

    def six_character_rule(self, base: str) -> str:
        """With qth_mas.txt in use a call base loses what stands behind its sixth character."""
        return base if self._qth_mas is None else (base + " " * 6)[:SIX_CHARACTERS]


def chosen(column: str, start: str, entries: dict[str, Entry], options: Options) -> str:
    """The text of a column: what it starts with, unless a source in place 1, 2 or 3 gives one."""
    text = start
    places = options.priorities[column]
    # Backwards, so that place 1 has the last word. Place 4 is never looked at.
    for place in range(PLACES_LOOKED_AT, 0, -1):
        source = places[place - 1]
        if source not in entries or not counts(column, source, options):
            continue
        value = getattr(entries[source], column)
        tested = value
        if (column, place, source) == ("code", 2, TEXT_DATA):
            # Kept as it always was: here the code of name_mas.txt decides, not the one taken.
            tested = entries[NAME_MAS].code
        if tested != "":
            text = value
    return text


def counts(column: str, source: str, options: Options) -> bool:
    if source == DAT_MAS:
        return options.counts_code_stage
    return all(options.is_on(box) for box in NEEDED_BOXES[column][source])
