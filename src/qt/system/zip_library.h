// ZipLibrary: libzip, loaded for as long as an archive is made and not with the program: it brings a library
// of ciphers along that would cost every start more memory than the workspace itself.
#pragma once

#include <string>
#include <zip.h>

namespace quill {

struct ZipLibrary {
    ZipLibrary();
    ~ZipLibrary();
    ZipLibrary(const ZipLibrary&) = delete;
    ZipLibrary& operator=(const ZipLibrary&) = delete;

    bool Loaded() const { return Missing.empty(); }

    decltype(&zip_open) Open = nullptr;
    decltype(&zip_close) Close = nullptr;
    decltype(&zip_discard) Discard = nullptr;
    decltype(&zip_file_add) FileAdd = nullptr;
    decltype(&zip_source_buffer) SourceBuffer = nullptr;
    decltype(&zip_source_free) SourceFree = nullptr;
    decltype(&zip_get_error) GetError = nullptr;
    decltype(&zip_error_code_zip) ErrorCodeZip = nullptr;
    decltype(&zip_error_code_system) ErrorCodeSystem = nullptr;
    decltype(&zip_error_strerror) ErrorText = nullptr;
    decltype(&zip_error_init_with_code) ErrorInit = nullptr;
    decltype(&zip_error_fini) ErrorFini = nullptr;

    std::string Missing; // the loader's own words when it can't be loaded; empty: all is there

private:
    template <class Function> void Find(const char* name, Function& function);
    void FindAll();

    void* library_ = nullptr;
};

} // namespace quill
