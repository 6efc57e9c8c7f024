"""Where the files of a run lie. Paths as in disk.py."""

from .disk import folder_of

QSL_FOLDER = "veldrana/qsl_dir/"

HISTORY_FOLDER = "veldrana/Temp_Files/"

ORG_QSL = QSL_FOLDER + "org_qsl.csv"
HISTORY_TIMES = "veldrana/Veldrana_fdt.ini"
# Nothing writes it any more; each run begins with deleting it.
OLD_HISTORY_INDEX = HISTORY_FOLDER + "bak_qso.HDX"

# The scratch files stand in the root of the drive.
SORT_IN = "Sort-in.dat"
SORT_OUT = "Sort-out.dat"
ROWS_FOR_CONTEST = "temp_h_o.csv"
ROWS_FOR_HAMLOG = "temp_h_n.csv"
SINGLES = "temp_s.csv"
MULTIPLES = "temp_d.csv"
SINGLES_UNSORTED = "semp_s.csv"
MULTIPLES_UNSORTED = "semp_d.csv"
JARL_UNSORTED = "temp_sj.csv"
HAMLOG_UNSORTED = "temp_h.csv"
HAMLOG_SORTED = "temp_hs.csv"
DUPES_UNSORTED = "zlog_3.txt"
DUPES_SORTED = "zlog_4.txt"
WORKED = "bak_1.txt"
WORKED_SORTED = "bak_2.txt"
WORKED_ONCE = "bak_3.txt"
RTCL_IN_ROOT = "zlog_01.txt"

RTCL_UNPACKED = "veldrana/rtcl_tmp.txt"


def history(index: int) -> str:
    """The history file of a button of Option07."""
    return f"{HISTORY_FOLDER}bak_qso.mas{index}_p"


class Names:
    """The files beside one log."""

    def __init__(self, log: str):
        self.folder = folder_of(log)
        self.log_lines = self.folder + "zlog_1.txt"
        self.coded_lines = self.folder + "zlog_2.txt"
        self.reversed_rows = self.folder + "hamlogja_0.csv"
        self.contest_rows = renamed(log, "_c0.csv")
        self.hamlog_rows = renamed(log, "_h0.csv")
        self.contest_result = renamed(log, "_cjn.csv")
        self.hamlog_result = renamed(log, "_hjn.csv")
        self.contest_split = renamed(log, "_cj.csv")
        self.hamlog_split = renamed(log, "_hj.csv")
        self.rtcl_text = self.folder + "zlog_01.txt"
        self.rtcl_beside = renamed(log, "_log2a.all")
        self.use_as_input(log)

    def use_as_input(self, path: str) -> None:
        """The dupe list alone is named after the text that a log was rewritten to."""
        self.dupe_list = path[: path.index(".") + 1] + "dup"


def renamed(log: str, suffix: str) -> str:
    """The extension gives way to the suffix wherever it stands in the path, folders included."""
    extension = log[log.rindex(".") :]
    return log.replace(extension, suffix)
