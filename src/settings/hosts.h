// Owns the hosts on the net that the program asks: one place to change them.
#pragma once

#include <string_view>

namespace veldrana {

// The postal codes of all addresses, as the post office offers them for download.
constexpr std::string_view japan_post_url =
    "https://www.post.japanpost.jp/zipcode/dl/kogaki/lzh/ken_all.lzh";

// The member search of the JARL.
constexpr std::string_view member_search_url =
    "https://www.jarl.com/cgi-bin/security/loginsrch.cgi";

// Where the tool is told of that divides a name master.
constexpr std::string_view name_mas_splitter_url = "https://veldrana.example.jp/get_name/";

// Where operators report what went wrong.
constexpr std::string_view report_address = "https://veldrana.example.jp/report/";

}  // namespace veldrana
