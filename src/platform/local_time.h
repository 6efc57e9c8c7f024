// Turns the system's count of seconds into local time; for the rest of this room.
#pragma once

#include <ctime>

#include "platform/clock.h"

namespace veldrana {

LocalTime local_time(std::time_t seconds);

}  // namespace veldrana
