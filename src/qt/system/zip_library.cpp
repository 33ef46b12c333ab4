#include "qt/system/zip_library.h"

#include <dlfcn.h>

namespace quill {
namespace {

std::string LoaderError() {
    const char* error = dlerror();
    return error != nullptr ? error : QUILLMERE_LIBZIP;
}

} // namespace

ZipLibrary::ZipLibrary() : library_(dlopen(QUILLMERE_LIBZIP, RTLD_LAZY | RTLD_LOCAL)) {
    if (library_ == nullptr)
        Missing = LoaderError();
    else
        FindAll();
}

ZipLibrary::~ZipLibrary() {
    if (library_ != nullptr) dlclose(library_);
}

template <class Function> void ZipLibrary::Find(const char* name, Function& function) {
    function = reinterpret_cast<Function>(dlsym(library_, name));
    if (function == nullptr) Missing = LoaderError();
}

void ZipLibrary::FindAll() {
    Find("zip_open", Open);
    Find("zip_close", Close);
    Find("zip_discard", Discard);
    Find("zip_file_add", FileAdd);
    Find("zip_source_buffer", SourceBuffer);
    Find("zip_source_free", SourceFree);
    Find("zip_get_error", GetError);
    Find("zip_error_code_zip", ErrorCodeZip);
    Find("zip_error_code_system", ErrorCodeSystem);
    Find("zip_error_strerror", ErrorText);
    Find("zip_error_init_with_code", ErrorInit);
    Find("zip_error_fini", ErrorFini);
}

} // namespace quill
