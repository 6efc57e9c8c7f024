#include "common/failure_report.h"

namespace veldrana {
namespace {

template <class Action>
void try_on_the_log(Action action) {
    try {
        action();
    } catch (...) {
        return;  // the disk that failed the run may fail the log too
    }
}

}  // namespace

void fatal_error_exit(TraceLog& trace, Person& person, const RunTimeError& error) {
    try_on_the_log([&] { trace.write("エラー内容 ：　" + error.description()); });
    person.show({.title = "　　エラー発生の為、　終了します！",
                 .text = spaced_lines({"エラー発生 ：　" + std::to_string(error.number()),
                                       "エラー内容 ：　" + error.description(),
                                       "終了します。不具合レポートの時にはお手数でも",
                                       trace.path() + " をお送り下さい。"}),
                 .icon = Icon::critical});
    fatal_error_thanks(trace, person);
}

void fatal_error_thanks(TraceLog& trace, Person& person) {
    person.show({.title = "　　　　　　お手数をお掛けしています。",
                 .text = spaced_lines({"エラーが多くてご迷惑をお掛けしています。",
                                       "どうにか動いている時には使用した感想等もお送りいただけると",
                                       "今後の励みになるんですが．．．．．"}),
                 .icon = Icon::information});
    try_on_the_log([&] { trace.close(); });
    throw ProgramEnd{ProgramEnd::Cause::reported};
}

}  // namespace veldrana
