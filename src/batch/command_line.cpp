#include "batch/command_line.h"

#include <cctype>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "common/text.h"
#include "platform/code_page_932.h"
#include "platform/environment.h"

namespace veldrana {
namespace {

// The words as they were given.
struct Words {
    std::string home;
    std::vector<std::string> drives;
    std::vector<std::string> settings;
    std::string answer = "cancel";
    bool keep_work = false;
    std::string log;
    std::string kind;
    std::string contest;
};

const std::map<std::string, InputKind> kinds{
    {"all", InputKind::all},       {"txt", InputKind::txt},           {"zlo", InputKind::zlo},
    {"cbr", InputKind::cbr},       {"ADIF", InputKind::ADIF},         {"lg8", InputKind::lg8},
    {"log_v4", InputKind::log_v4}, {"log_v430", InputKind::log_v430},
};

bool is_folder(const std::filesystem::path& path) {
    std::error_code error;
    return std::filesystem::is_directory(path, error);
}

std::string check_drive(const std::string& word) {
    const bool letter =
        word.size() > 2 && word[1] == '=' && std::isalpha(static_cast<unsigned char>(word[0])) != 0;
    if (!letter) {
        return "X=DIR の形で指定して下さい: " + word;
    }
    return is_folder(word.substr(2)) ? "" : "フォルダがありません: " + word.substr(2);
}

std::string check_setting(const std::string& word) {
    const std::size_t equals = word.find('=');
    return equals != std::string::npos && equals > 0 ? ""
                                                     : "NAME=VALUE の形で指定して下さい: " + word;
}

void declare(CLI::App& app, Words& words) {
    app.fallthrough();
    app.require_subcommand(1);
    app.set_help_flag("-h,--help", "この説明を表示する");
    app.failure_message([](const CLI::App*, const CLI::Error& error) {
        return std::string("使い方が正しくありません: ") + error.what() +
               "\n--help で使い方を表示します。\n";
    });
    app.add_option("--home", words.home, "プログラムのフォルダ (省略時は実行ファイルのある所)");
    app.add_option("--drive", words.drives, "ドライブ名 X にフォルダ DIR を割り当てる: X=DIR")
        ->allow_extra_args(false)
        ->check(check_drive);
    app.add_option("--set", words.settings, "メイン画面の項目を設定する: NAME=VALUE")
        ->allow_extra_args(false)
        ->check(check_setting);
    app.add_option("--answer", words.answer, "質問への答え: retry, cancel, ok (省略時は cancel)")
        ->check(CLI::IsMember({"retry", "cancel", "ok"}));
    app.add_flag("--keep-work", words.keep_work, "終了時に作業ファイルを残す");

    CLI::App* const convert = app.add_subcommand("convert", "ログを変換する");
    convert->add_option("LOG", words.log, "入力ログ")->required();
    convert->add_option("--contest", words.contest,
                        "個別 DAT のファイル名でコンテストを選ぶ (Option02=2 の時)");
    std::vector<std::string> names;
    names.reserve(kinds.size());
    for (const auto& [name, kind] : kinds) {
        names.push_back(name);
    }
    convert
        ->add_option("--kind", words.kind,
                     "ログの種類: all, txt, zlo, cbr, ADIF, lg8, log_v4, log_v430 "
                     "(省略時は拡張子と内容による)")
        ->check(CLI::IsMember(names));

    CLI::App* const z2a = app.add_subcommand("z2a", "zLog の ZLO から ALL を作成する");
    z2a->add_option("LOG", words.log, "入力ログ (zlo)")->required();
}

BatchOptions options_of(const Words& words, const char* first_word) {
    BatchOptions options;
    options.home =
        words.home.empty() ? executable_folder(first_word) : std::filesystem::path(words.home);
    for (const std::string& drive : words.drives) {
        options.drives[drive.front()] = drive.substr(2);
    }
    for (const std::string& word : words.settings) {
        // What the files of a run cannot hold becomes "?" here, so that widths come out as counted.
        const std::string setting = from_code_page(to_code_page(well_formed(word)));
        const std::size_t equals = setting.find('=');
        options.settings.emplace_back(setting.substr(0, equals), setting.substr(equals + 1));
    }
    options.answer = words.answer == "retry"    ? Answer::retry
                     : words.answer == "cancel" ? Answer::cancel
                                                : Answer::ok;
    options.keep_work = words.keep_work;
    return options;
}

}  // namespace

int run_command_line(int count, char** words, const BatchOutput& output) {
    CLI::App app("コンテストログ変換 (画面なし)");
    Words given;
    declare(app, given);
    try {
        app.parse(count, words);
    } catch (const CLI::ParseError& error) {
        const bool asked_for_help = app.exit(error, output.results, output.messages) == 0;
        return asked_for_help ? exit_done : exit_usage;
    }
    const BatchOptions options = options_of(given, words[0]);
    if (!is_folder(options.home)) {
        output.messages << "プログラムのフォルダがありません: " << options.home.string() << '\n';
        return exit_refused;
    }
    if (given.log.empty()) {
        output.messages << "入力ログを指定して下さい。\n";
        return exit_usage;
    }
    if (app.got_subcommand("z2a")) {
        return z2a(options, given.log, output);
    }
    const auto kind = kinds.find(given.kind);
    return convert(options,
                   {.log = given.log,
                    .kind = kind == kinds.end() ? std::nullopt : std::optional(kind->second),
                    .contest = given.contest},
                   output);
}

}  // namespace veldrana
