#include "readers/manual_dat.h"

#include <string>

#include "common/procedure.h"
#include "common/text.h"
#include "masters/code_flag.h"
#include "masters/contest_list.h"

namespace veldrana {
namespace {

// Folder and name of a path, of which no more is looked at than old fields of file names held.
void take_folder_and_name(std::string_view path, DatFile& dat) {
    constexpr Count path_width = 120;
    const std::string_view looked_at = trim(MidMbcs(path, 1, path_width));
    const std::size_t name = looked_at.rfind('\\') + 1;
    dat.folder = looked_at.substr(0, name);
    dat.name = looked_at.substr(name);
}

std::string_view kind_in(std::string_view name) {
    const std::string small = lower(name);
    for (const std::string_view ending : {".dat", ".mst", ".mas"}) {
        if (small.find(ending) != std::string::npos) {
            return ending.substr(1);
        }
    }
    return {};
}

// Whether a contest of the list is that of the file; its fields, or those of the last contest,
// stand in the selection then.
bool find_contest(const Stage& stage, std::string_view contest_name_csv,
                  ContestSelection& selection, std::string& Dat_name) {
    ContestList list(stage, contest_name_csv, ContestList::Heading::read_as_contest);
    const std::string name = lower(selection.dat.name);
    for (ContestEntry entry; list.next(entry);) {
        selection.Con_name = entry.Con_name;
        selection.Code_flag = entry.Code_flag;
        selection.Con_no_1 = entry.Con_no_1;
        selection.Con_no_2 = entry.Con_no_2;
        Dat_name = entry.Dat_name;
        if (name.find(Dat_name) != std::string::npos) {
            return true;
        }
    }
    return false;
}

}  // namespace

bool choose_dat_by_hand(Person& person, std::string_view zlog_dat_dir,
                        ContestSelection& selection) {
    const std::string path = person.choose_file(
        {.title = "　" + upper(zlog_dat_dir) + "　の ＊．ｄａｔ ファイルを  開く ....",
         .filter = "手動用個別ＤＡＴファイル(*.dat;*.mas;*.mst)|*.dat;*.mas;*.mst|",
         .folder = std::string(zlog_dat_dir)});
    if (path.empty()) {
        return false;
    }
    DatFile& dat = selection.dat;
    dat.dat_in_name = path;
    take_folder_and_name(path, dat);
    if (const std::string_view kind = kind_in(dat.name); !kind.empty()) {
        dat.kind = kind;
    }
    return true;
}

void take_listed_dat(const DatFolders& folders, std::string_view Dat_name, DatFile& dat) {
    const bool is_dat = Dat_name.find(".dat") != std::string_view::npos;
    dat.name = Dat_name;
    dat.dat_in_name = is_dat ? folders.zlog_dat_dir : folders.mas_mst;
    dat.dat_in_name += Dat_name;
    DatFile of_path;
    take_folder_and_name(dat.dat_in_name, of_path);
    dat.folder = of_path.folder;
}

AllDat read_all_dat(const Stage& stage, const AllDatRequest& request, ContestSelection& selection,
                    ContestRefusals& refusals) {
    return enter_procedure(stage.trace, "Private Sub read_all_dat()", [&] {
        std::string Dat_name;
        if (!find_contest(stage, request.contest_name_csv, selection, Dat_name)) {
            return AllDat::not_found;
        }
        if (selection.Code_flag == no_code_flag && !refusals.code) {
            no_code_from_chosen_dat(stage.person, selection, refusals);
            return AllDat::refused;
        }
        if (request.data_file_is_code_source) {
            if (request.Op04_Chk) {
                request.Op04_Chk();
            }
            take_listed_dat(request.folders, Dat_name, selection.dat);
        }
        return AllDat::found;
    });
}

}  // namespace veldrana
