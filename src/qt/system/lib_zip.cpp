#include "qt/system/lib_zip.h"

#include "posix/errors.h"
#include "qt/system/zip_library.h"

#include <memory>

namespace quill {
namespace {

Failure FailureOf(const ZipLibrary& zip, zip_error_t& error) {
    const bool taken = zip.ErrorCodeZip(&error) == ZIP_ER_EXISTS;
    if (const int system = zip.ErrorCodeSystem(&error); system != 0 && !taken) return FailureOfErrno(system);
    return {taken ? Reason::Exists : Reason::Other, zip.ErrorText(&error)};
}

Failure FailureOf(const ZipLibrary& zip, int code) {
    zip_error_t error;
    zip.ErrorInit(&error, code);
    Failure failure = FailureOf(zip, error);
    zip.ErrorFini(&error);
    return failure;
}

bool Add(const ZipLibrary& zip, zip_t* archive, const ZipEntry& entry) {
    zip_source_t* source = zip.SourceBuffer(archive, entry.Bytes.data(), entry.Bytes.size(), 0);
    if (source == nullptr) return false;
    if (zip.FileAdd(archive, entry.Name.c_str(), source, ZIP_FL_ENC_UTF_8) >= 0) return true;
    zip.SourceFree(source);
    return false;
}

} // namespace

Status LibZip::Write(const std::string& path, const std::vector<ZipEntry>& entries) {
    const ZipLibrary zip;
    if (!zip.Loaded()) return Failure{Reason::Other, zip.Missing};
    int code = 0;
    // Written or not, an archive that is not closed is thrown away.
    std::unique_ptr<zip_t, decltype(&zip_discard)> archive(
        zip.Open(path.c_str(), ZIP_CREATE | ZIP_EXCL, &code), zip.Discard);
    if (!archive) return FailureOf(zip, code);
    for (const auto& entry : entries)
        if (!Add(zip, archive.get(), entry)) return FailureOf(zip, *zip.GetError(archive.get()));
    if (zip.Close(archive.get()) != 0) return FailureOf(zip, *zip.GetError(archive.get()));
    (void)archive.release();
    return {};
}

} // namespace quill
