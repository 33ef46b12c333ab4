// Instance: at most one running copy a user, and the word from a second start to the first. Needs no display
// and builds nothing that costs time: a second start is over within milliseconds.
#pragma once

#include "platform/result.h"

namespace quill {

enum class Summons {
    Show,   // a plain second start: come out, never dock or hide
    Toggle, // --toggle: what the hotkey does
};

enum class Claim {
    First,    // this copy is the one; the claim lasts until the process ends
    Called,   // another copy runs and has taken the word
    NoAnswer, // another copy runs and does not answer
};

class Instance {
public:
    virtual ~Instance() = default;

    // Failure when the place for the lock can't be had; Text says why.
    virtual Result<Claim> ClaimOrCall(Summons word) = 0;
};

} // namespace quill
