"""Writes the sample masters: contest data, codes, postal codes, and names with their places."""

import re
from dataclasses import dataclass

from contests import CONTESTS
from places import (
    AREAS,
    CITIES,
    KYOTO_DISTRICTS,
    KYOTO_WARDS,
    PREFECTURES,
    TOKYO_WARDS,
    Area,
    Place,
)
from sample_files import Dice, padded, write_lines

CONTEST_TABLES = "veldrana/mas_mst/"

# The second heading line of every master in the columns of a user text.
COLUMNS = "'ｺｰﾙｻｲﾝ|__氏  名___|ｺｰﾄﾞ_|26___Ｑ  Ｔ  Ｈ____________|____備    考" + "_" * 40
EDITED = "<<Edited by Veldrana 5.30 : 20250401 >>"

# The seat of each prefecture's government: degrees north and east.
SEATS = {
    "01": (43.06, 141.35), "02": (40.82, 140.74), "03": (39.70, 141.15), "04": (39.72, 140.10),
    "05": (38.24, 140.36), "06": (38.27, 140.87), "07": (37.75, 140.47), "08": (37.90, 139.02),
    "09": (36.65, 138.18), "10": (35.69, 139.69), "11": (35.45, 139.64), "12": (35.61, 140.12),
    "13": (35.86, 139.65), "14": (36.34, 140.45), "15": (36.57, 139.88), "16": (36.39, 139.06),
    "17": (35.66, 138.57), "18": (34.98, 138.38), "19": (35.39, 136.72), "20": (35.18, 136.91),
    "21": (34.73, 136.51), "22": (35.02, 135.76), "23": (35.00, 135.87), "24": (34.69, 135.83),
    "25": (34.69, 135.52), "26": (34.23, 135.17), "27": (34.69, 135.18), "28": (36.70, 137.21),
    "29": (36.07, 136.22), "30": (36.59, 136.63), "31": (34.66, 133.93), "32": (35.47, 133.05),
    "33": (34.19, 131.47), "34": (35.50, 134.24), "35": (34.40, 132.46), "36": (34.34, 134.04),
    "37": (34.07, 134.56), "38": (33.84, 132.77), "39": (33.56, 133.53), "40": (33.61, 130.42),
    "41": (33.25, 130.30), "42": (32.75, 129.87), "43": (32.79, 130.74), "44": (33.24, 131.61),
    "45": (31.91, 131.42), "46": (31.56, 130.56), "47": (26.21, 127.68),
}

SURNAMES = (
    "佐藤 鈴木 高橋 田中 伊藤 渡辺 山本 中村 小林 加藤 吉田 山田 松本 井上 木村 林 清水 山崎 森 池田 "
    "橋本 阿部 石川 山下 中島 石井 小川 前田 岡田 藤田 後藤 青木 坂本 近藤 村上 遠藤 原 竹内 三浦 "
    "上田 丸山 大野 野口 松田 中野 小島 谷口 今井 増田 河野"
).split()
GIVEN_NAMES = (
    "一郎 健二 正 和夫 茂 清 博 進 隆 誠 浩 学 明 実 修 豊 勝 昇 稔 弘 直樹 大輔 拓也 達也 洋介 "
    "康平 由美 恵子 洋子 京子 真理 裕子 さくら みどり 千尋 美咲 俊彦 雅之 義男 孝"
).split()
CLUBS = ["みどり無線会", "青空クラブ", "高校無線部", "丘の上クラブ", "海辺無線会", "山彦クラブ"]
REMARKS = ["ﾛｰｶﾙ局", "記念局も運用", "ｱﾝﾃﾅ 10mH", "週末に運用", "移動が多い", "144MHz FM 常駐"]
FRIENDS_REMARKS = ["学生時代の友人", "職場の友人", "ｱｲﾎﾞｰﾙ済", "毎朝 7MHz で会う", "旅行で会った", ""]

# A post code of each city, most of them of the district of its town hall.
POST_CODES = """
    0600001 0101  0700030 0102  0400001 0104  0800010 0107  0300801 0201  0200021 0301  0100001 0401
    1000001 100101  1040061 100102  1600022 100104  1500001 100113  1920081 1002  1900012 1003
    2200012 1101  2380041 1102  2100007 1103  2600013 1201  2720021 1203  2770005 1217
    3100011 1401  3200027 1501  3710026 1601  3700829 1602  3800836 0901  3900811 0902
    4000031 1701  4200853 1801  4300946 1802  4500002 2001  4600001 2001  4700000 2012
    5000000 1901  5140004 2101  5200044 2301  5300001 2501  5900078 2502
    6040000 2201  6308213 2401  6500021 2701  6700012 2702  6200000 2202
    7000824 3101  7300011 3501  7500006 3302  7600019 3601  7900001 3801  7800870 3901
    8100001 4001  8400041 4101  8500035 4201  8700021 4401  8800805 4501  8920821 4601
    9000014 4701  9100005 2901  9200962 3001  9300083 2801  9500000 0801  9608041 0701  9900041 0501
"""

CODE_FILE_HELP = """\
    ｈｌ_ｃｏｄｅ．ｍａｓ の 作 成 の 説 明

hl_code.mas は、受信したナンバー（ JCC、JCG など ）から code と QTH を求めるための表です。
表は、ログブックのマスターファイル Hamlog.mst から作成します。

１）　「 環境設定 」 で Hamlog.hdb のフォルダを指定して下さい。
　　　Hamlog.mst も同じフォルダにあるものとして読み込みます。
２）　作成の前に、今までの hl_code.mas は BackUp フォルダにコピーされます。
３）　都府県や支庁の短い番号（ ３桁まで ）の行は、今までの hl_code.mas から引き継ぎます。
　　　それ以外の行は Hamlog.mst の内容に置き換わります。
４）　作成後は、内容をエディタで確認して下さい。修正もエディタで出来ます。

ファイルの形式　（ Shift_JIS、１、２行目は見出し ）

　　　  2 〜  7 バイト目　　ナンバー
　　　 20 〜 25 バイト目　　code
　　　 26 〜 57 バイト目　　QTH

同じナンバーの行が二つ以上ある時は、始めの行が使われます。
"""

# A name, the six items of each remark, and the six lengths of each.
LAYOUTS = [
    ("コンテスト名のみ", ["ｺﾝﾃｽﾄ"], [], [20], []),
    ("メモとオペレータ", ["memo", "OP"], ["ｺﾝﾃｽﾄ", "Rcvd"], [30, 10], [20, 10]),
    ("移動運用", ["Rmks1", "memo="], ["ｺﾝﾃｽﾄ", "OP %", "Rmks2"], [20, 24], [16, 10, 20]),
]


@dataclass(frozen=True)
class Person:
    call: str
    name: str
    home: Place
    remarks: str


def write_contest_list() -> None:
    rows = [
        ",".join([str(i), c.settings, c.data, c.name, c.flag, c.number, c.number_more, ""])
        for i, c in enumerate(CONTESTS, 1)
    ]
    heading = "番号,CFGファイル,DATファイル,コンテスト名称,フラグ,ナンバー1,ナンバー2,備考"
    write_lines(CONTEST_TABLES + "contest_name.csv", [heading, *rows])


def write_logger_table(name: str, places: list[Area | Place]) -> None:
    """In the columns of the contest logger, where the number is the code."""
    lines = [padded(p.number, 11) + padded(p.name, 28).rstrip() for p in places]
    write_lines(f"zlog/{name}", [f"{name} sample", *lines])


def write_own_table(name: str, rows: list[tuple[str, str, str]]) -> None:
    """In the program's own columns. A row is key, code and place."""
    lines = [
        padded(key, 6) + padded(code, 7) + " " + padded(place, 28).rstrip()
        for key, code, place in rows
    ]
    write_lines(CONTEST_TABLES + name, [f"{name} sample", *lines])


def kcj_rows() -> list[tuple[str, str, str]]:
    return [(a.abbreviation, a.number, a.name) for a in AREAS]


def kyoto_rows() -> list[tuple[str, str, str]]:
    wards = [("W" + p.number[4:], p.number, p.name) for p in KYOTO_WARDS]
    cities = [
        ("C" + p.number[2:], p.number, p.name)
        for p in CITIES
        if p.number.startswith("22") and p.number != "2201"
    ]
    districts = [("G" + p.number[3:], p.number, p.name) for p in KYOTO_DISTRICTS]
    return wards + cities + districts + kcj_rows()


def kansai_rows() -> list[tuple[str, str, str]]:
    kansai = ("22", "23", "24", "25", "26", "27")
    cities = [p for p in CITIES if p.number.startswith(kansai)]
    areas = [a for a in AREAS if a.number not in kansai]
    return [(p.number, p.number, p.name) for p in [*areas, *cities]]


def write_contest_tables() -> None:
    cities = CITIES + TOKYO_WARDS
    write_logger_table("allja.dat", AREAS)
    write_logger_table("field.dat", AREAS + cities)
    write_logger_table("acag.dat", cities)
    write_own_table("kcj.mas", kcj_rows())
    write_own_table("kyoto.mas", kyoto_rows())
    write_own_table("knsvhf.mst", kansai_rows())


def code_line(key: str, code: str, place: str, width: int) -> str:
    return "'" + padded(key, 18) + padded(code, 6) + padded(place, width).rstrip()


def write_code_file() -> None:
    places = [*AREAS, *CITIES, *TOKYO_WARDS]
    title = f" hl_code.mas         <=ﾀｲﾄﾙ,  [{len(places):6d}]  {EDITED}"
    lines = [code_line(p.number, p.number, p.name, 32) for p in places]
    write_lines("veldrana/hl_code.mas", [title, COLUMNS, *lines])
    write_lines("veldrana/Make_hl_code_mas.txt", CODE_FILE_HELP.splitlines())


def write_post_codes() -> None:
    names = {p.number: town_name(p) for p in CITIES + TOKYO_WARDS}
    words = POST_CODES.split()
    entries = list(zip(words[::2], words[1::2]))
    for digit in "0123456789":
        lines = [
            code_line(post_code[1:], code, names[code], 12)
            for post_code, code in entries
            if post_code[0] == digit
        ]
        title = f" yubin_m{digit}.mas        <=ﾀｲﾄﾙ,  [      ]  {EDITED}"
        write_lines(f"yubin/yubin_m{digit}.mas", [title, COLUMNS, *lines])


def town_name(place: Place) -> str:
    """Without the prefecture."""
    prefectures = ["北海道", *(a.name for a in PREFECTURES)]
    return next(place.name.removeprefix(p) for p in prefectures if place.name.startswith(p))


def write_layouts() -> None:
    lines = [
        ",".join([name, *six(items1, ""), *six(items2, ""), *six(lengths1, 0), *six(lengths2, 0)])
        for name, items1, items2, lengths1, lengths2 in LAYOUTS
    ]
    write_lines("veldrana/Veldrana_Rireki.cfg", ["Veldrana_Rireki.cfg  ver 5.30", *lines])


def six(things: list, filler) -> list[str]:
    return [str(thing) for thing in things + [filler] * (6 - len(things))]


def locator(place: Place) -> str:
    """Of the seat of the place's prefecture."""
    north, east = SEATS[place.number[:2]]
    x, y = east + 180, north + 90
    field = chr(ord("A") + int(x // 20)) + chr(ord("A") + int(y // 10))
    square = f"{int(x % 20 // 2)}{int(y % 10)}"
    part = chr(ord("A") + int(x % 2 * 12)) + chr(ord("A") + int(y % 1 * 24))
    return field + square + part


def home_calls(calls: list[str]) -> list[str]:
    """The Japanese calls without what stands behind a slash, sorted, each once."""
    japanese = re.compile(r"(J[A-S]|[78][J-N])\d[A-Z]{2,3}")
    return sorted({call.split("/")[0] for call in calls if japanese.match(call)})


def make_person(dice: Dice, call: str, prefectures_by_call_area: dict[str, list[str]]) -> Person:
    prefectures = prefectures_by_call_area["1" if call[0] in "78" else call[2]]
    home = dice.pick([p for p in CITIES if p.number[:2] in prefectures])
    is_club = call[3] in "YZ" and call[0] == "J"
    name = dice.pick(CLUBS) if is_club else f"{dice.pick(SURNAMES)} {dice.pick(GIVEN_NAMES)}"
    return Person(call, name, home, dice.pick(REMARKS) if dice.happens(20) else "")


def user_text_line(person: Person, name: str, last: str) -> str:
    line = (
        " "
        + padded(person.call, 6)
        + padded(name, 12)
        + padded(person.home.number, 6)
        + padded(person.home.name, 28)
        + padded(last, 54)
    )
    return line.rstrip()


def write_user_text(name: str, lines: list[str]) -> None:
    title = f" {name}    <=ﾀｲﾄﾙ,  [{len(lines):6d}]"
    write_lines(f"mas/{name}", [title, COLUMNS, *lines])


def write_call_masters(dice: Dice, people: list[Person]) -> None:
    """Each file leaves a few stations out, as a user's own do."""
    names = [user_text_line(p, p.name, p.remarks) for p in people if dice.happens(92)]
    write_user_text("name_mas.txt", names)

    homes = [user_text_line(p, p.name, locator(p.home)) for p in people if dice.happens(88)]
    write_user_text("qth_mas.txt", homes)

    friends = [
        user_text_line(p, p.name.split()[-1] + "さん", dice.pick(FRIENDS_REMARKS))
        for p in people
        if p.name not in CLUBS and dice.happens(15)
    ]
    write_user_text("友達.txt", friends)


def write_fixed_masters() -> None:
    """All that does not hang on the calls of the logs."""
    write_contest_list()
    write_contest_tables()
    write_code_file()
    write_post_codes()
    write_layouts()
