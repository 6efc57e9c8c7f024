// The number of the failure that an action ends in; 0 if it ends well.
#pragma once

#include "common/run_time_error.h"

namespace veldrana {

template <class Act>
int failure_of(Act act) {
    try {
        act();
    } catch (const RunTimeError& error) {
        return error.number();
    }
    return 0;
}

}  // namespace veldrana
