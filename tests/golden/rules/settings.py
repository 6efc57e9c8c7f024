"""The two profile files that a run starts from: where the masters lie, and the stored options."""

from dataclasses import dataclass

from .disk import Drive, read_lines
from .numbers import leading_digits
from .sjis import decode, encode, to_unicode, trim, upper

PROGRAM_FOLDER = "veldrana/"
OWN_MASTERS = PROGRAM_FOLDER + "mas_mst/"
OPTION_FILE = PROGRAM_FOLDER + "Veldrana_new.ini"
ENVIRONMENT_FILE = PROGRAM_FOLDER + "Veldrana_cfg.ini"

LONGEST_VALUE = 127

# The paths without which the program opens its dialog instead of the main screen.
NEEDED_PATHS = (
    "zlog_dat_dir", "name_mas_dir", "qth_mas_dir", "yubin_mas_dir", "hamlog_hdb_dir",
    "hamlog_hdb_2_dir", "zlo_dir", "all_dir",
)  # fmt: skip

PRIORITY_KEYS = {"name": "name_yusen_jun", "code": "code_yusen_jun", "qth": "qth_yusen_jun"}
DEFAULT_PRIORITY = "dat_mas,name_mas,qth_mas,Text_data"
SLOT_KEYS = ("Rmks1_cfg", "Rmks2_cfg")
SLOTS = 6
PERIOD_KEYS = ("Start_date", "End_date", "use_system_date_flag")
FIRST_DATE = "19600101"
# A period that ends today ends behind it, wherever the clock stands.
SURELY_PAST = 20251231
TEXT_PATH_KEYS = {"Check4_A": "Text_data_dir_A", "Check4_B": "Text_data_dir_B"}


class Profile:
    """The values of one file, by section and key, whose case does not count."""

    def __init__(self, raw: bytes):
        self._values: dict[tuple[str, str], str] = {}
        section = ""
        for line in map(trim, read_lines(raw)):
            if line.startswith("[") and line.endswith("]"):
                section = upper(line[1:-1])
            elif "=" in line and not line.startswith(";"):
                key, _, value = line.partition("=")
                # Of a key that stands twice the first counts.
                self._values.setdefault((section, upper(trim(key))), trim(value))

    def value(self, section: str, key: str) -> str:
        """The stored text, cut to what one read gives; empty without the key."""
        value = self._values.get((upper(section), upper(key)), "")
        return decode(encode(value)[:LONGEST_VALUE])

    def keys(self, section: str) -> list[str]:
        return [key for found, key in self._values if found == upper(section)]


@dataclass
class Environment:
    """Where the masters lie. Paths as in disk.py; None for a master that is not used."""

    dat_folder: str
    name_mas: str | None
    qth_mas: str | None
    postal_folder: str | None
    log_book: str
    no_qsl_letter: str


def read_environment(files: Drive) -> Environment:
    profile = Profile(files[ENVIRONMENT_FILE])
    values = {key: profile.value("Veldrana_cfg.ini", key) for key in NEEDED_PATHS}
    if "" in values.values():
        raise ValueError("Veldrana_cfg.ini has an empty path, so no run comes about")

    name_folder = used_path(values["name_mas_dir"])
    environment = Environment(
        dat_folder=drive_path(values["zlog_dat_dir"]),
        name_mas=None if name_folder is None else name_folder + "name_mas.txt",
        qth_mas=used_path(values["qth_mas_dir"]),
        postal_folder=used_path(values["yubin_mas_dir"]),
        log_book=drive_path(values["hamlog_hdb_dir"]),
        no_qsl_letter=stored_letter(profile),
    )
    check_start(files, environment)
    return environment


def stored_letter(profile: Profile) -> str:
    """The letter of contacts that need no card."""
    if profile.value("Veldrana_cfg.ini", "No_QSL_moji_set_flag") in ("", "0"):
        return "N"
    letter = profile.value("Veldrana_cfg.ini", "No_QSL_moji")
    if len(letter) != 1:
        raise ValueError("the rules know a No QSL letter of one character only")
    return letter


def check_start(files: Drive, environment: Environment) -> None:
    """What has to be there for the program to start."""
    needed = []
    if environment.name_mas is not None:
        needed.append(environment.name_mas)
    if environment.postal_folder is not None:
        needed += [f"{environment.postal_folder}yubin_m{digit}.mas" for digit in range(10)]
    for path in needed:
        if files.find(path) is None:
            raise ValueError(f"the program does not start without {path}")


def used_path(value: str) -> str | None:
    # A whole character: the second byte of a double-byte character may be 0x5C too.
    return drive_path(value) if "\\" in value else None


def drive_path(value: str) -> str:
    drive, backslash, path = value.partition("\\")
    if upper(drive) != "C:" or not backslash:
        raise ValueError(f"a case has no drive but C: {to_unicode(value)}")
    return to_unicode(path.replace("\\", "/"))


@dataclass
class Period:
    """The dates between which a contact of the log book counts, both ends with them."""

    first: int  # yyyymmdd
    last: int | None  # None: today

    def holds(self, date: int) -> bool:
        if self.last is not None:
            return self.first <= date <= self.last
        if date > SURELY_PAST:
            raise ValueError("set use_system_date_flag=0: a contact may lie behind today")
        return self.first <= date


@dataclass
class StoredOptions:
    """What Veldrana_new.ini gives to the main screen."""

    controls: dict[str, str]
    text_paths: dict[str, str]  # the paths of the user texts, by the box that chooses each
    priorities: dict[str, list[str]]
    slots: list[list[str]]  # the items of either remark, slot by slot
    period: Period


def read_stored_options(files: Drive, default: bytes, controls: list[str]) -> StoredOptions:
    """The options of a case. `default` is the file of the default station.

    The rules look at these `controls` alone, at the user texts, the period and the priorities. A
    case that changes another key is refused, so that a slip of the pen is seen.
    """
    profile = Profile(files[OPTION_FILE])
    keys = (*controls, *PERIOD_KEYS, *TEXT_PATH_KEYS.values(), *SLOT_KEYS)
    looked_at = [upper(key) for key in keys]
    section = "Veldrana_new.ini"
    usual = Profile(default)
    for key in {*profile.keys(section), *usual.keys(section)} - {*looked_at}:
        if profile.value(section, key) != usual.value(section, key):
            raise ValueError(f"the rules do not know the key {key} of Veldrana_new.ini yet")

    text_paths = {}
    for box, key in TEXT_PATH_KEYS.items():
        value = profile.value(section, key)
        if value != "":
            text_paths[box] = drive_path(value)
            if files.find(text_paths[box]) is None:
                raise ValueError(f"the program forgets {key}: there is no such file")
    return StoredOptions(
        # What is missing or blank reads as 0.
        controls={name: profile.value(section, name) or "0" for name in controls},
        text_paths=text_paths,
        priorities={
            column: priority_list(profile.value("DAT_MAS", key))
            for column, key in PRIORITY_KEYS.items()
        },
        slots=[slot_list(profile.value(section, key)) for key in SLOT_KEYS],
        period=read_period(*(profile.value(section, key) for key in PERIOD_KEYS)),
    )


def read_period(first: str, last: str, follows_today: str) -> Period:
    last = "" if follows_today == "1" else last.replace("/", "").replace("-", "")
    # The first date keeps its slashes, and so is no more than its year.
    return Period(
        first=leading_digits(first or FIRST_DATE),
        last=leading_digits(last) if last != "" else None,
    )


def slot_list(value: str) -> list[str]:
    items = [item.strip(" ") for item in value.split(",")]
    if value == "" or len(items) < SLOTS:
        raise ValueError("the rules leave open what a list of fewer than six slots does")
    return [to_unicode(item) for item in items[:SLOTS]]


def priority_list(value: str) -> list[str]:
    # "user_txt" is what the source was called before.
    places = (value.replace("user_txt", "Text_data") or DEFAULT_PRIORITY).split(",")
    if len(places) < 3:
        raise ValueError("the rules leave open what a list of fewer than three places does")
    return places
