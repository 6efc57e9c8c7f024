#!/usr/bin/env python3
"""Writes what a first start leaves in an empty program folder.

The tables below are worked out from the rules of the settings files, without any code of the
program: C:\\veldrana is empty, nothing is installed on the drive, the clock stands at
2026-05-04 13:02:09, and the start ends in the environment dialog.

    expected/             the files, to the byte: Shift_JIS, CR LF
    expected_folders.txt  the folders, one a line

The environment file is not among them: a new option file has the present version, so no step of
the start writes it; the environment dialog does when it saves. The trace log, the only file in
Error_Log, is left out because it tells of the run.
"""

import pathlib

HERE = pathlib.Path(__file__).resolve().parent

TODAY = "20260504"
YEAR = "2026"
VERSION = "5.30"

SOURCES = "dat_mas,name_mas,qth_mas,Text_data"
COLUMNS = "600,1300,850,700,400,400,800,450,900,900,550,1800,3700,7100,7100,400"
ZEROS = "0," * 12

# Keys in the order of writing, each with the value that the last write of the first start gives it.
OPTIONS = [
    (
        "Veldrana_new.ini",
        [
            ("version", VERSION),
            ("restart", "restart"),
            ("Option01", "0"),
            ("Option07", "0"),
            ("Option02", "0"),
            ("Option04", "0"),
            ("Check10", "0"),
            ("Check06", "0"),
            ("Option1", "0"),
            ("QSL_Q", "J"),
            ("QSL_S", "*"),
            ("Check01", "1"),
            ("Check15", "1"),
            ("Check19", "0"),
            ("Check20", "0"),
            ("Option05", "0"),
            ("Option06", "0"),
            ("Check21", "0"),
            ("YYYY", YEAR),
            ("Check03", "0"),
            ("Option09", "0"),
            ("Check08", "0"),
            ("Option03", "0"),
            ("Option08", "0"),
            ("Check1", "0"),
            ("Rmks1_cfg", "ｺﾝﾃｽﾄ" + "," * 12),
            ("Rmks2_cfg", "Rmks2" + "," * 12),
            ("Rmks1_cfg_len", ZEROS),
            ("Rmks2_cfg_len", ZEROS),
            ("Start_date", "19600101"),
            ("End_date", TODAY),
            ("use_system_date_flag", "1"),
            ("Check2", "0"),
            ("Check3", "0"),
            ("disp_top_SSTab", "0"),
            ("disp_top_SSTab_2", "0"),
            ("Check4", "1"),
            ("Check5", "1"),
            ("Check6", "1"),
            ("Check7", "0"),
            ("Check07", "0"),
            ("Check14", "0"),
            ("Check16", "0"),
            ("Check17", "0"),
            ("Check18", ""),  # has no default
            ("Option7", "0"),
            ("Option8", "0"),
            ("Option9", "0"),
            ("Option2", "0"),
            ("Option22", "0"),
            ("Check4_A", "0"),
            ("Check4_B", "0"),
            ("Text_data_dir_A", ""),
            ("Text_data_dir_B", ""),
            ("Check8", "0"),
            ("Check9", "0"),
            ("Check11", "0"),
            ("Check12", "0"),
            ("Check13", "0"),
            ("Check23", "1"),
            ("DeBug_flag", "0"),
        ],
    ),
    (
        "JARL_Search",
        [
            ("N_sreach_flag", ""),
            ("N_ReWrite_flag", ""),
            ("Not_JARL_flag", ""),
            ("ReWrite_also_flag", ""),
            ("QSL_moji", ""),
        ],
    ),
    (
        "DAT_MAS",
        [
            ("name_yusen_jun", SOURCES),
            ("code_yusen_jun", SOURCES),
            ("qth_yusen_jun", SOURCES),
            ("dat_mas_color", "16711680"),
            ("name_mas_color", "16776960"),
            ("qth_mas_color", "32768"),
            ("text_data_color", "16711935"),
        ],
    ),
    (
        "ColWidth_Grid",
        [
            # Both check boxes start as "0", but the read between the writes of the first start asks
            # for them by a name that is never written, so that the later writes find them empty.
            ("get_ColWidth_Grid4", COLUMNS),
            ("Grid4_Check1", ""),
            ("get_ColWidth_Grid5", COLUMNS),
            ("Grid5_Check1", ""),
        ],
    ),
    ("Main", [("exe_rec", "0"), ("Check_dat", "")]),
    (
        "Make_Yubin_mas",
        [
            ("Make_Yubin_mas_help_flag", "0"),
            (
                "url_ken_all_lzh",
                "https://www.post.japanpost.jp/zipcode/dl/kogaki/lzh/ken_all.lzh",
            ),
        ],
    ),
]

# No history was read yet.
HISTORY_TIMES = [
    ("Veldrana_fdt.ini", [("version", VERSION)]),
    ("Sansyou_files QSO", [("hamlog_hdb_dir_FileDateTime_QSO", "")]),
    ("Sansyou_files QSL_sent", [("hamlog_hdb_dir_FileDateTime_QSL_sent", "")]),
    ("Sansyou_files QSL_rcvd", [("hamlog_hdb_dir_FileDateTime_QSL_rcvd", "")]),
]

POSITIONS = ["[Config]", "version=" + VERSION, ""]

FOLDERS = ["BackUp", "Error_Log", "Temp_Files", "Yubin_m_new", "qsl_dir"]


def profile_lines(sections):
    lines = []
    for name, keys in sections:
        lines.append(f"[{name}]")
        lines += [f"{key}={value}" for key, value in keys]
    return lines


def main():
    files = {
        "Veldrana_new.ini": profile_lines(OPTIONS),
        "Veldrana_fdt.ini": profile_lines(HISTORY_TIMES),
        "Veldrana_posi.ini": POSITIONS,
    }
    folder = HERE / "expected"
    folder.mkdir(exist_ok=True)
    for old in folder.iterdir():
        old.unlink()
    for name, lines in files.items():
        text = "".join(line + "\r\n" for line in lines)
        (folder / name).write_bytes(text.encode("cp932"))
    (HERE / "expected_folders.txt").write_bytes(
        "".join(name + "\n" for name in FOLDERS).encode("ascii")
    )


if __name__ == "__main__":
    main()
