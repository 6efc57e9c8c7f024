// Owns RunOptions: the choices that a run obeys, each under the name of its control on the main
// screen. The driver fills it from the screen when a run starts; stages get it as const.
#pragma once

#include <string>

namespace veldrana {

struct RunOptions {
    // Take the frequency from the memo.
    bool Check01 = true;
    // Read only the lines of the operator txtOp_name; without a name every line.
    bool Check15 = true;
    // Trimmed.
    std::string txtOp_name;
    // The contest year, four characters; taken as the year of logs that have none.
    std::string txtYYYY;
};

}  // namespace veldrana
