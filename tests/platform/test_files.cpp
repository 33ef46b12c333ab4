// The fake computer's files against the contract.
#include "fake/files.h"
#include "platform/contract_files.h"

namespace quill {
namespace {

struct FakeWorld {
    FakeWorld() { files.PutFolder(Root); }
    Files& Get() { return files; }
    void MakeReadOnly(const std::string& path) { files.MakeReadOnly(path); }
    void MakeUnreadable(const std::string& path) { files.MakeUnreadable(path); }

    fake::FakeFiles files;
    std::string Root = "/home/user/files";
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, FilesContract, FakeWorld);

} // namespace
} // namespace quill
