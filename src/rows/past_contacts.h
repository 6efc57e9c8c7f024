// Owns the interface through which the row builder asks whether a station needs no card.
#pragma once

#include <string_view>

#include "platform/stage.h"

namespace veldrana {

class PastContacts {
  public:
    PastContacts() = default;
    PastContacts(const PastContacts&) = delete;
    PastContacts& operator=(const PastContacts&) = delete;
    virtual ~PastContacts() = default;

    // Reads what is known of the past, once at the start of a pass over the contacts.
    virtual void prepare(const Stage& stage) = 0;

    // Whether a contact is covered by one of the past: its call as logged, its frequency in MHz
    // and its mode.
    virtual bool covers(std::string_view call, std::string_view frequency,
                        std::string_view mode) const = 0;
};

}  // namespace veldrana
