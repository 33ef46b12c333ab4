// The fake computer's archives: the entries are kept by path, and a small readable file stands in the tree
// for the archive.
#pragma once

#include "platform/files.h"
#include "platform/zip.h"

#include <deque>
#include <map>

namespace quill::fake {

class FakeZip : public Zip {
public:
    explicit FakeZip(Files& files) : files_(files) {}

    Status Write(const std::string& path, const std::vector<ZipEntry>& entries) override {
        if (!failures_.empty()) {
            Status status = failures_.front();
            failures_.pop_front();
            return status;
        }
        if (auto made = files_.Create(path, Token(entries)); !made) return made;
        Archives[path] = entries;
        return {};
    }

    void FailNext(Failure failure) { failures_.push_back(std::move(failure)); }

    // By the path that Write was given, also after a rename.
    std::map<std::string, std::vector<ZipEntry>> Archives;
    // What stands in the file: "zip: a.REC b.REC".
    static std::string Token(const std::vector<ZipEntry>& entries) {
        std::string text = "zip:";
        for (const auto& entry : entries) text += " " + entry.Name;
        return text;
    }

private:
    Files& files_;
    std::deque<Failure> failures_;
};

} // namespace quill::fake
