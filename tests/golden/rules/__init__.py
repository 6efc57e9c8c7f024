"""The rules of a run, written a second time and apart from the program.

One module for each stage: history (with log_book), the readers text_logs, zlo, cabrillo, adif and rtcl (with kinds, which
tells them apart), code_stage (with code_masters and contest_data), rows (with sources,
call_masters, calls, times and remarks), split_merge and orders, dupe_list, marks, last_pass. Below them the text
(sjis), the case folder (case), the profile files (settings), the controls (options), the drive
(disk), the sort (sorting), the paths (names), the numbers and the counters.

Nothing here shares code with the program, and nothing here is fast: it is there to be read against
the rules and to say what the program has to write.
"""
