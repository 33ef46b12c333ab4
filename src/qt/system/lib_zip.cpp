#include "qt/system/lib_zip.h"

#include <zip.h>

#include <cerrno>
#include <cstring>
#include <memory>

namespace quill {
namespace {

Reason KindOf(int systemError) {
    switch (systemError) {
    case EEXIST:
        return Reason::Exists;
    case ENOSPC:
    case EDQUOT:
        return Reason::NoSpace;
    case EACCES:
    case EROFS:
    case EPERM:
        return Reason::Denied;
    case ENOENT:
        return Reason::NotFound;
    default:
        return Reason::Other;
    }
}

Failure FailureOf(zip_error_t& error) {
    const bool taken = zip_error_code_zip(&error) == ZIP_ER_EXISTS;
    const int system = zip_error_code_system(&error);
    return {taken ? Reason::Exists : KindOf(system),
            system != 0 ? std::strerror(system) : zip_error_strerror(&error)};
}

// Written or not, an archive that is not closed is thrown away.
struct Discard {
    void operator()(zip_t* archive) const { zip_discard(archive); }
};
using Archive = std::unique_ptr<zip_t, Discard>;

bool Add(zip_t* archive, const ZipEntry& entry) {
    zip_source_t* source = zip_source_buffer(archive, entry.Bytes.data(), entry.Bytes.size(), 0);
    if (source == nullptr) return false;
    if (zip_file_add(archive, entry.Name.c_str(), source, ZIP_FL_ENC_UTF_8) >= 0) return true;
    zip_source_free(source);
    return false;
}

} // namespace

Status LibZip::Write(const std::string& path, const std::vector<ZipEntry>& entries) {
    int code = 0;
    Archive archive(zip_open(path.c_str(), ZIP_CREATE | ZIP_EXCL, &code));
    if (!archive) {
        zip_error_t error;
        zip_error_init_with_code(&error, code);
        Failure failure = FailureOf(error);
        zip_error_fini(&error);
        return failure;
    }
    for (const auto& entry : entries)
        if (!Add(archive.get(), entry)) return FailureOf(*zip_get_error(archive.get()));
    if (zip_close(archive.get()) != 0) return FailureOf(*zip_get_error(archive.get()));
    (void)archive.release();
    return {};
}

} // namespace quill
