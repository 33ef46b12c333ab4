// The fake computer's word between copies: claims are scripted, by default this copy is the first.
#pragma once

#include "platform/instance.h"

#include <deque>
#include <vector>

namespace quill::fake {

class FakeInstance : public Instance {
public:
    Result<Claim> ClaimOrCall(Summons word) override {
        Words.push_back(word);
        if (script_.empty()) return Claim::First;
        auto claim = script_.front();
        script_.pop_front();
        return claim;
    }

    void Next(Result<Claim> claim) { script_.push_back(std::move(claim)); }
    std::vector<Summons> Words;

private:
    std::deque<Result<Claim>> script_;
};

} // namespace quill::fake
