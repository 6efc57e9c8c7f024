"""One run from the opened log on. A further stage is a further call in convert()."""

from dataclasses import dataclass
from pathlib import Path

from . import (
    adif,
    cabrillo,
    code_stage,
    dupe_list,
    history,
    kinds,
    last_pass,
    marks,
    rows,
    rtcl,
    split_merge,
    text_logs,
    zlo,
)
from .calls import CallRules
from .case import Case
from .contest_data import Contest, choose_contest
from .counters import counter_lines
from .disk import Drive, LineWriter, ProgramEnd, files_in, load_tree
from .names import HISTORY_FOLDER, OLD_HISTORY_INDEX, QSL_FOLDER, Names
from .options import CONTEST_DATA, STORED, Options
from .settings import (
    OPTION_FILE,
    PROGRAM_FOLDER,
    Environment,
    read_environment,
    read_stored_options,
)
from .sources import Sources

DEFAULT_STATION = Path(__file__).resolve().parent.parent / "veldrana"

DONE = 0
REFUSED = 1
FAILED = 3


@dataclass
class Outcome:
    status: int
    files: dict[str, bytes]  # every file of the folders that the run writes to
    counters: str = ""  # what the program prints, if the run came to its end


def run(case: Case) -> Outcome:
    station = {PROGRAM_FOLDER + path: raw for path, raw in load_tree(DEFAULT_STATION).items()}
    files = Drive(station | load_tree(case.input), [QSL_FOLDER, HISTORY_FOLDER], case.times)
    names = Names(case.log)
    environment = read_environment(files)
    options = Options(case.settings, read_stored_options(files, station[OPTION_FILE], STORED))
    raw = files[case.log]
    kind = case.kind or kinds.kind_of(case.log, raw)
    contest_name = ""
    contest = None
    if kind == "zlo" and options.choice("Option02") == CONTEST_DATA:
        header = zlo.read_header(files, environment, raw)
        contest_name, contest = header.contest_name, header.contest
    if case.contest:
        if options.choice("Option02") != CONTEST_DATA:
            raise ValueError("a contest can be chosen only with Option02=2")
        if kind == "zlo":
            raise ValueError("a .zlo finds its contest by itself")
        contest = choose_contest(files, environment, case.contest)

    counters = ""
    status = REFUSED
    if is_ready(files, kind, case.log, options, contest):
        delete_old_index(files)
        if not options.lacks_choice_of_text:
            try:
                counters = convert(
                    files, kind, case.log, names, options, environment, contest, contest_name
                )
                status = DONE
            except ProgramEnd:
                status = FAILED
    folders = (names.folder, QSL_FOLDER, HISTORY_FOLDER)
    left = {path: raw for folder in folders for path, raw in files_in(files, folder).items()}
    return Outcome(status, left, counters)


def is_ready(
    files: Drive, kind: str, log: str, options: Options, contest: Contest | None
) -> bool:
    """Whether the start button is on."""
    if not kinds.accepts(kind, log, files[log]):
        return False
    return options.choice("Option02") != CONTEST_DATA or contest is not None


def delete_old_index(files: Drive) -> None:
    name = files.find(OLD_HISTORY_INDEX)
    if name is not None:
        files.delete(name)


def convert(
    files: Drive,
    kind: str,
    log: str,
    names: Names,
    options: Options,
    environment: Environment,
    contest: Contest | None,
    contest_name: str,
) -> str:
    sources = Sources(files, options, environment)
    history.refresh(files, options, environment)
    read_log(files, kind, log, names, options)
    code_stage.write_coded_lines(files, names, options, environment, contest)
    no_qsl = rows.build_rows(files, names, options, CallRules(), sources, contest_name)
    lines, multiples, singles = split_merge.write_contest_rows(files, names, options)
    if options.is_on("Check06"):
        dupe_list.write_dupe_list(files, names)

    marks.turn_marks(files, names, options)
    marks.write_original_marks(files, names)
    letter = environment.no_qsl_letter
    if letter != "N":
        marks.rewrite_letter(files, names, letter)
    marks.rewrite_letter(files, names, letter)
    last_pass.write_result(files, names.hamlog_rows, names.hamlog_result, options, letter)
    named = last_pass.write_result(
        files, names.contest_rows, names.contest_result, options, letter
    )
    files.delete(names.hamlog_rows, names.contest_rows, names.hamlog_split, names.contest_split)
    files.delete(names.reversed_rows, names.rtcl_text)
    return counter_lines(lines, multiples, singles, no_qsl, named, sources.text_hits)


def read_log(files: Drive, kind: str, log: str, names: Names, options: Options) -> None:
    raw = files[log]
    if kind in rtcl.LAYOUTS:
        rtcl.read_rtcl(files, kind, raw, names, options)
        return
    out = LineWriter(files, names.log_lines)
    if kind == "zlo":
        zlo.read_zlo(raw, options, out)
    elif kind == "cbr":
        cabrillo.read_cabrillo(raw, options, out)
    elif kind == "ADIF":
        adif.read_adif(raw, options, out)
    else:
        text_logs.read_text_log(log, raw, options, out)
