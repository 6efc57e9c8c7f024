#!/usr/bin/env bash
# Makes the pictures of docs/images anew: the built program under Xvfb, driven by a script of steps.
# To look at the screens only: another folder, program and folder of the plugin can be named, and
# another scaling and screen (QT_SCALE_FACTOR=2 SCREEN=2560x1600x24).
set -euo pipefail
cd "$(dirname "$0")/../.."
pictures=$(realpath -m "${1:-docs/images}")
program=$(realpath "${2:-build/bin/veldrana}")
plugins=$(realpath "${3:-build/release/plugins}")
mkdir -p "$pictures"

if [ $# -gt 0 ]; then
    # No dot in the name: the dupe list is named by what stands before the first one.
    work=$(mktemp -d /tmp/veldrana-XXXXXX)
else
    work=/tmp/veldrana-pictures  # it reads well in the pictures
    mkdir "$work"
fi
trap 'rm -rf "$work"' EXIT
cp -r samples/{veldrana,mas,yubin,zlog,hamlog,logs} "$work"
cp "$program" "$work/veldrana/"
# The program's drive Z: is the whole tree.
root=$(printf 'Z:%s' "${work//\//\\}")
python3 - "$work/veldrana/Veldrana_cfg.ini" "$root" <<'PY'
import sys
path, root = sys.argv[1:]
with open(path, encoding="cp932", newline="") as file:
    text = file.read()
with open(path, "w", encoding="cp932", newline="") as file:
    file.write(text.replace("C:", root))
PY

cat >"$work/steps" <<STEPS
wait frmConfig
shot $pictures/environment.png
click cmdSave
click cmdOK
answer
wait Toolbar1
shot $pictures/main-empty.png
press mnuOpen
choose $work/logs/allja_sample.all
click Check06
drag Command1(5) lblRmks1(2)
expect lblRmks1(2) Rcvd
shot $pictures/main-reading.png
tab SSTab1 1
tab SSTab2 1
click Option07(1)
shot $pictures/main-output.png
click cmdDate
shot $pictures/period.png
click cmdOK
tab SSTab1 2
tab SSTab2 2
shot $pictures/main-members.png
tab SSTab2 3
click cmdStart
expect lblCFG 処 理 終 了
shot $pictures/main-result.png
tab SSTab1 1
click cmdCheck_bak_qso_mas
shot $pictures/histories.png
press mnuBack
click cmdDisp_Hamlog
shot $pictures/viewer.png
press mnuOK
tab SSTab2 0
click Option02(2)
press mnuOpenDat_semi
shot $pictures/contest.png
click cmdBack
close
STEPS

cd "$work"  # a start through the environment dialog leaves a file in the current folder
VELDRANA_STEPS=$work/steps QT_PLUGIN_PATH=$plugins \
    QT_QPA_GENERIC_PLUGINS=veldrana_driver QT_QPA_PLATFORM=xcb LANG=C.UTF-8 \
    timeout 120 xvfb-run -a -s "-screen 0 ${SCREEN:-1920x1200x24}" "$work/veldrana/veldrana"
