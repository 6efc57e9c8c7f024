"""The controls of the main screen that a run reads."""

from . import sjis
from .settings import StoredOptions

REMARK_SLOTS = [f"lblRmks{remark}({slot})" for remark in (1, 2) for slot in range(6)]

# What Veldrana_new.ini stores: radio groups by the index of their button, boxes as 0 and 1.
# A case that sets a control of neither table is refused, so that a slip of the pen is seen.
STORED = [
    "Option01",  # the log book: 0 chosen, anything else not
    "Option02",  # the code stage: 0 none, 1 hl_code.mas, 2 contest data, 3 postal master
    "Option04",  # 1: what the code stage found is a source of the rows, and it keeps its code
    "Option05",  # 0 stations worked once apart from the others, 1 together
    "Option06",  # the key: 0 call, band, mode, date, time; 1 call, date, time, band, mode
    "Option07",  # the history: 0 not used, 1 stations worked, 2 cards sent, 3 cards received
    "Option08",  # the time: 0 as logged, 1 all J, 2 all U, 3 DX in U, 4 JA in J
    "Option09",  # the order: 0 ASCII, 1 JARL, 2 JARL reversed
    "Option1",  # the time of the log: 0 UTC, 1 Japan
    "Option4",  # where a user text's remark goes: Rmks 1 left, right, Rmks 2 left, right
    "Check01",  # take the frequency from the memo
    "Check03",  # use name_mas.txt
    "Check06",  # make the dupe list
    "Check08",  # the order for the contest file only
    "Check1",  # a blank between the items of a remark
    "Check10",  # no card for club stations
    "Check14",  # use qth_mas.txt
    "Check4",  # qth_mas.txt: the code
    "Check5",  # qth_mas.txt: the G/L
    "Check6",  # qth_mas.txt: the name
    "Check7",  # qth_mas.txt: the QTH
    "Check16",  # qth_mas.txt: nothing but the name of a portable station
    "Check15",  # read only the operator of txtOp_name
    "Check18",  # read the log book at every run
    "Check19",  # the history counts on the same band only
    "Check2",  # N becomes J for a whole station
    "Check20",  # the history counts in the same mode only
    "Check21",  # "#" for stations worked once
    "Check3",  # J becomes N for a whole station
    "Check8",  # use a user text
    "Check4_A",  # user text A
    "Check4_B",  # user text B
    "Check9",  # user text: the QTH
    "Check11",  # user text: the name
    "Check12",  # user text: the remark
    "Check13",  # user text: the code
    "Check17",  # user text: no code and QTH of a portable station
]

# What has a value of its own at a start.
FIELDS = {
    "txtOp_name": "",
    "txtQSL_Q": "J",
    "txtQSL_S": "*",
    "txtRmks1": "",
    "txtRmks2": "",
    "txtYYYY": None,  # the present year: a case whose result holds it has to set it
    "Check27": "0",  # ADIF: no letters of power in the received number
    "Check28": "0",  # ADIF: the received number from APP_N1MM_EXCHANGE1
}

# Forms of an item that never stand in the slots together, once one of them was put there.
OTHER_FORM = {"memo": "memo=", "memo=": "memo", "OP": "OP %", "OP %": "OP"}

# One of two boxes going on takes the other off.
EXCLUDED_BY = {
    "Check2": "Check3",
    "Check3": "Check2",
    "Check4_A": "Check4_B",
    "Check4_B": "Check4_A",
}

NO_CODE_STAGE, HL_CODE, CONTEST_DATA, POSTAL = range(4)


class Options:
    def __init__(self, settings: list[tuple[str, str]], stored: StoredOptions):
        self._text_paths = stored.text_paths
        self.priorities = stored.priorities
        self.period = stored.period
        slots = dict(zip(REMARK_SLOTS, stored.slots[0] + stored.slots[1], strict=True))
        self._values = {**stored.controls, **FIELDS, **slots}
        self._choose_log_book()
        if stored.controls["Check8"] == "1":
            self._choose_only_text()
        for name, value in settings:
            if name not in self._values:
                raise ValueError(f"the rules know no control {name}")
            self._set(name, value)

    def _set(self, name: str, value: str) -> None:
        if name == "Option01" and value != "0":
            raise ValueError("Option01 has one button; only the stored value can leave it unchosen")
        if name in REMARK_SLOTS:
            self._drop(name, value)
            return
        self._values[name] = value
        self._choose_log_book()
        if value != "1":
            return
        if name in EXCLUDED_BY:
            self._values[EXCLUDED_BY[name]] = "0"
        if name == "Check8":
            self._choose_only_text()
        if name in ("Check4_A", "Check4_B") and name not in self._text_paths:
            raise ValueError(f"{name} is taken back: it has no user text")

    def _drop(self, target: str, item: str) -> None:
        """An item put into a slot leaves every other slot, and so does its other form."""
        for slot in REMARK_SLOTS:
            if self._values[slot] in (item, OTHER_FORM.get(item, item)):
                self._values[slot] = ""
        self._values[target] = item

    def _choose_log_book(self) -> None:
        """Each button of Option07 but the first takes the log book with it."""
        if self.choice("Option07") != 0:
            self._values["Option01"] = "0"

    def _choose_only_text(self) -> None:
        """With one user text the box is chosen by itself."""
        if len(self._text_paths) == 1:
            for box in ("Check4_A", "Check4_B"):
                self._values[box] = "1" if box in self._text_paths else "0"

    def is_on(self, check_box: str) -> bool:
        return self._values[check_box] == "1"

    def choice(self, group: str) -> int:
        return int(self._values[group])

    @property
    def is_log_book_chosen(self) -> bool:
        return self.choice("Option01") == 0

    @property
    def history_index(self) -> int | None:
        """The button of Option07 whose history file is in use, None without a history.

        Where the log book is not chosen the run takes the choice off the first button. So a history
        is looked for, under the index 0 of the button that was chosen before.
        """
        index = self.choice("Option07")
        return None if index == 0 and self.is_log_book_chosen else index

    @property
    def user_text(self) -> str | None:
        """The path of the user text that is in use."""
        if not self.is_on("Check8"):
            return None
        box = next((box for box in ("Check4_A", "Check4_B") if self.is_on(box)), None)
        return None if box is None else self._text_paths[box]

    @property
    def lacks_choice_of_text(self) -> bool:
        """Two user texts and neither chosen: the start button says so and does nothing."""
        return self.is_on("Check8") and self.user_text is None and len(self._text_paths) == 2

    @property
    def counts_code_stage(self) -> bool:
        return self.choice("Option02") != NO_CODE_STAGE and self.choice("Option04") == 1

    def uses(self, item: str) -> bool:
        """Whether a remark item ("memo", "memo=", "OP", "OP %") stands in a slot."""
        return any(self._values[slot] == item for slot in REMARK_SLOTS)

    def remark_items(self, remark: int) -> list[str]:
        """The items of Rmks 1 or Rmks 2 in the order of the slots, empty slots closed up."""
        slots = [self._values[slot] for slot in REMARK_SLOTS if slot.startswith(f"lblRmks{remark}")]
        return [item for item in slots if item]

    def comment(self, remark: int) -> str:
        return self._text(f"txtRmks{remark}")

    @property
    def operator_name(self) -> str:
        return self._text("txtOp_name")

    @property
    def transfer_mark(self) -> str:
        return self._text("txtQSL_Q")[:1] or " "

    @property
    def sent_mark(self) -> str:
        return self._text("txtQSL_S")[:1] or " "

    @property
    def contest_year(self) -> str:
        if self._values["txtYYYY"] is None:
            raise ValueError("set txtYYYY: without it the result changes with the year")
        return sjis.from_unicode(self._values["txtYYYY"])[:4]

    def _text(self, field: str) -> str:
        return sjis.trim(sjis.from_unicode(self._values[field]))
