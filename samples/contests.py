"""The contests of the sample contest list: names and number rules are public facts."""

from dataclasses import dataclass


@dataclass(frozen=True)
class Contest:
    settings: str  # the logger's settings file
    data: str  # the contest data file
    name: str
    flag: str  # how a number becomes a code, and the kind of the data file
    number: str
    number_more: str = ""


_AREA = "都府県支庁ナンバー"
_CITY = "市郡区ナンバー"
_POWER = "空中線電力 H M L P"
_SERIAL = "RST＋001形式の連番"
_AREA_OR_CITY = "RST＋" + _CITY + "または" + _AREA

# The first row is never chosen by a log's name, so no contest with a data file stands there. Of the
# contests with the same data file, the one after which the file is named comes first.
CONTESTS = [
    Contest("nyp.cfg", "nypno.dat", "ニューイヤーパーティー", "00", "RST＋オペレータ名"),
    Contest("allja.cfg", "allja.dat", "ALL JA コンテスト", "31", "RST＋" + _AREA + "＋電力", _POWER),
    Contest("field.cfg", "field.dat", "フィールドデーコンテスト", "31", "RST＋" + _AREA + "＋電力",
            "高い周波数帯では" + _CITY),
    Contest("acag.cfg", "acag.dat", "全市全郡コンテスト", "31", "RST＋" + _CITY + "＋電力", _POWER),
    Contest("6mdown.cfg", "field.dat", "6m and DOWNコンテスト", "31", "RST＋" + _AREA + "＋電力",
            "高い周波数帯では" + _CITY),
    Contest("koukou.cfg", "allja.dat", "全国高等学校アマチュア無線コンテスト", "31",
            "RST＋" + _AREA + "＋局種の英字"),
    Contest("uec.cfg", "uec.dat", "電通大コンテスト", "31", "RST＋" + _AREA + "＋局種の英字"),
    # Digits only
    Contest("kntuhf.cfg", "acag.dat", "関東ＵＨＦコンテスト", "11", "RST＋" + _CITY),
    Contest("knsvhf.cfg", "knsvhf.mst", "関西ＶＨＦコンテスト", "13", _AREA_OR_CITY,
            "近畿の局は" + _CITY),
    Contest("area1.cfg", "area1.dat", "ALL JA1 コンテスト", "11", _AREA_OR_CITY),
    Contest("area4.cfg", "area4.dat", "ALL JA4 コンテスト", "11", _AREA_OR_CITY),
    Contest("area5.cfg", "area5.dat", "ALL JA5 コンテスト", "11", _AREA_OR_CITY),
    Contest("area8.cfg", "area8.dat", "ALL JA8 コンテスト", "11", _AREA_OR_CITY),
    Contest("tokyo.cfg", "tokyo.dat", "東京コンテスト", "11", _AREA_OR_CITY),
    Contest("tokyocw.cfg", "tokyo.dat", "東京ＣＷコンテスト", "11", _AREA_OR_CITY),
    Contest("tokyouhf.cfg", "tokyo.dat", "東京ＵＨＦコンテスト", "11", _AREA_OR_CITY),
    Contest("osaka.cfg", "osaka.dat", "オール大阪コンテスト", "11", _AREA_OR_CITY),
    Contest("hyogo.cfg", "hyogo.dat", "オール兵庫コンテスト", "11", _AREA_OR_CITY),
    Contest("okayama.cfg", "okayama.dat", "オール岡山コンテスト", "11", _AREA_OR_CITY),
    Contest("shimane.cfg", "shimane.dat", "島根対全日本コンテスト", "11", _AREA_OR_CITY),
    Contest("fukuoka.cfg", "fukuoka.dat", "福岡コンテスト", "11", _AREA_OR_CITY),
    Contest("kyushu.cfg", "kyushu.dat", "オール九州コンテスト", "11", _AREA_OR_CITY),
    Contest("tohoku.cfg", "tohoku.dat", "オール東北コンテスト", "11", _AREA_OR_CITY),
    Contest("aichi.cfg", "aichi.dat", "オール愛知コンテスト", "11", _AREA_OR_CITY),
    Contest("gifu.cfg", "gifu.dat", "オール岐阜コンテスト", "11", _AREA_OR_CITY),
    Contest("kanagawa.cfg", "kanagawa.dat", "オール神奈川コンテスト", "11", _AREA_OR_CITY),
    Contest("daitoshi.cfg", "daitoshi.dat", "大都市コンテスト", "11", _AREA_OR_CITY),
    # Letters for places
    Contest("kcj.cfg", "kcj.mas", "KCJコンテスト", "22", "RST＋都府県支庁の略称", "東京 TK 大阪 OS など"),
    Contest("kcjtop.cfg", "kcj.mas", "KCJトップバンドコンテスト", "22", "RST＋都府県支庁の略称"),
    Contest("kcwa.cfg", "kcj.mas", "KCWA CWコンテスト", "22", "RST＋都府県支庁の略称"),
    Contest("arakawa.cfg", "arakawa.dat", "荒川コンテスト", "21", "RST＋市区町村の略号"),
    Contest("tamagawa.cfg", "tamagawa.dat", "多摩川コンテスト", "21", "RST＋市区の略号"),
    Contest("turumi.cfg", "turumi.dat", "鶴見川コンテスト", "21", "RST＋市区の略号"),
    Contest("shizuoka.cfg", "shizuoka.dat", "静岡コンテスト", "21", "RST＋市区町の略号",
            "県外局は" + _AREA),
    Contest("nasu.cfg", "kcj.mas", "なす電信コンテスト", "42", "RST＋都府県支庁の略称＋連番"),
    # Numbers that need a rule of their own
    Contest("fham.cfg", "fham.dat", "Nifty FHAMコンテスト", "51", "RST＋ID の頭3文字",
            "ID の無い局は" + _AREA),
    Contest("kyoto.cfg", "kyoto.mas", "京都コンテスト", "64", "RST＋略称または府内の番号",
            "京都市は W01 など 府内の市は C02 など"),
    Contest("gunma.cfg", "gunma.dat", "オール群馬コンテスト", "71", "RST＋市または郡と町村の番号",
            "町村は 16001B など"),
    Contest("kouchi.cfg", "kouchi.dat", "高知県マラソンコンテスト", "71", "RST＋市または郡と町村の番号"),
    Contest("ehime.cfg", "ehime.dat", "愛媛マラソンコンテスト", "71", "RST＋市郡区または島の番号"),
    # No place in the number
    Contest("area0.cfg", "area0no.dat", "ALL JA0 コンテスト", "00", _SERIAL),
    Contest("locator.cfg", "locno.dat", "ＡＣＣロケーターコンテスト", "00", "RST＋グリッドロケーター"),
    Contest("cqww.cfg", "cqwwno.dat", "CQWW DX Contest", "00", "RST＋CQゾーン"),
    Contest("cqwpx.cfg", "wpxno.dat", "CQ WPX Contest", "00", _SERIAL),
    Contest("aadx.cfg", "aadxno.dat", "All Asian DX Contest", "00", "RST＋年齢"),
    Contest("iaruhf.cfg", "iaruno.dat", "IARU HF Championship", "00", "RST＋ITUゾーン"),
    Contest("jidx.cfg", "jidxno.dat", "JIDX Contest", "00", "RST＋CQゾーン"),
    Contest("arrldx.cfg", "arrldxno.dat", "ARRL International DX Contest", "00", "RST＋州の略号"),
    Contest("apsprint.cfg", "apsno.dat", "Asia Pacific Sprint", "00", _SERIAL),
    Contest("iota.cfg", "iotano.dat", "IOTA Contest", "00", _SERIAL, "島の局は島の番号も"),
    Contest("waedc.cfg", "waedcno.dat", "WAEDC Contest", "00", _SERIAL),
    Contest("ocdx.cfg", "ocdxno.dat", "Oceania DX Contest", "00", _SERIAL),
]
