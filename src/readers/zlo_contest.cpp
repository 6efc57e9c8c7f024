#include "readers/zlo_contest.h"

#include "common/text.h"

namespace veldrana {
namespace {

// The logger names this contest by the file of its settings.
constexpr std::string_view nifty_settings = "Fham.cfg";
constexpr std::string_view nifty_name = "Nifty FHAMコンテスト";

}  // namespace

ZloContest find_zlo_contest(const Stage& stage, std::string_view contest_name_csv,
                            std::string_view contest_name) {
    ZloContest contest{.contest_name = std::string(contest_name)};
    ContestList list(stage, contest_name_csv, ContestList::Heading::read_as_contest);
    while (!contest.found && list.next(contest.row)) {
        contest.row.Con_name = std::string(trim(contest.row.Con_name));
        contest.found = contest_name.find(contest.row.Con_name) != std::string_view::npos;
    }
    if (contest.row.Con_name == nifty_settings) {
        contest.contest_name = nifty_name;
        contest.row.Con_name = nifty_name;
    }
    return contest;
}

}  // namespace veldrana
