#include "viewers/frmDisp.h"

#include "settings/window_positions.h"

namespace veldrana {

frmDisp::frmDisp(Disk& disk, std::string strPath, std::string name)
    : WindowForm(std::move(name)), disk_(disk), strPath_(std::move(strPath)) {
    mnuOK.Click = [this] { mnuOK_Click(); };
}

void frmDisp::Form_Load(std::string_view disp_name) {
    if (!window.visible) {
        load_position(disk_, strPath_, window);
    }
    text_ = ViewedText(disk_, disp_name);
    disp_name_ = disp_name;
    window.caption = disp_name_;
    window.visible = true;
}

void frmDisp::mnuOK_Click() {
    save_position(disk_, strPath_, window);
    window.visible = false;
}

}  // namespace veldrana
