"""One run from the opened log on, stage after stage. A further stage is a further call in run()."""

from dataclasses import dataclass

from . import text_logs
from .case import Case
from .disk import LineWriter, RunTimeFailure, files_in, folder_of, load_tree
from .options import Options

DONE = 0
REFUSED = 1
FAILED = 3


@dataclass
class Outcome:
    status: int
    files: dict[str, bytes]  # every file of the folders that the run writes to


def run(case: Case) -> Outcome:
    files = load_tree(case.input)
    status = convert(files, case.log, Options(case.settings))
    return Outcome(status, files_in(files, folder_of(case.log)))


def convert(files: dict[str, bytes], log: str, options: Options) -> int:
    raw = files[log]
    if not text_logs.accepts(log, raw):
        return REFUSED
    try:
        zlog_1 = LineWriter(files, folder_of(log) + "zlog_1.txt")
        text_logs.read_text_log(log, raw, options, zlog_1)
    except RunTimeFailure:
        return FAILED
    return DONE
