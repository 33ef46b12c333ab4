// The fake computer's network: what was fetched waits until a test answers.
#pragma once

#include "platform/web.h"

#include <deque>
#include <string>
#include <utility>
#include <vector>

namespace quill::fake {

class FakeWeb : public Web {
public:
    void Fetch(const std::string& address, std::uint64_t limit,
               std::function<void(Result<std::string>)> handler) override {
        Fetched.push_back(address);
        waiting_.emplace_back(limit, std::move(handler));
    }

    std::size_t Waiting() const { return waiting_.size(); }
    void Answer(const std::string& body) { // the first that waits
        auto [limit, handler] = Next();
        if (body.size() > limit)
            handler(Failure{Reason::TooLarge, "too large"});
        else
            handler(body);
    }
    void Fail(Failure failure) { Next().second(std::move(failure)); }
    void EndProcess() { waiting_.clear(); }

    std::vector<std::string> Fetched;

private:
    using Question = std::pair<std::uint64_t, std::function<void(Result<std::string>)>>;
    Question Next() {
        Question next = std::move(waiting_.front());
        waiting_.pop_front();
        return next;
    }
    std::deque<Question> waiting_;
};

} // namespace quill::fake
