// Any bytes as the inside of a shortcut's and a picture's record and as single values: what could be read is
// the same when it was written and read again.
#include "fuzz_workspace.h"

#include "persistence/line_reader.h"
#include "persistence/link_record.h"
#include "persistence/picture_record.h"

using namespace quill;

namespace {

template <class Record>
std::string Rewritten(std::string_view inside, bool (*read)(TagReader&, Record&),
                      void (*write)(std::string&, const Record&)) {
    TagReader reader(inside);
    Record record;
    std::string text;
    if (read(reader, record)) write(text, record);
    return text;
}

// The text of a record without its opening line, as the readers want it.
std::string_view Inside(const std::string& text) {
    return std::string_view(text).substr(text.find('\n') + 1);
}

template <class Record>
void Check(std::string_view inside, bool (*read)(TagReader&, Record&), bool (*readOwn)(TagReader&, Record&),
           void (*write)(std::string&, const Record&)) {
    const std::string once = Rewritten(inside, read, write);
    if (once.empty()) return;
    const std::string twice = Rewritten(Inside(once), readOwn, write);
    fuzz::Require(!twice.empty() && twice == Rewritten(Inside(twice), readOwn, write));
}

std::string StoredAgain(std::string_view path) {
    std::string stored;
    AppendPath(stored, ReadPath(path));
    return stored;
}

// Every path settles, and one of the file system comes back as it was.
void CheckPath(std::string_view text) {
    const std::string_view path = text.substr(0, text.find('\0'));
    std::string stored;
    AppendPath(stored, path);
    const std::string once = StoredAgain(stored);
    fuzz::Require(once == StoredAgain(once));
    fuzz::Require(!path.starts_with('/') || ReadPath(stored) == path);
}

void CheckValues(std::string_view text) {
    float number = 0;
    if (!ReadValue(text, number)) return;
    std::string written;
    AppendValue(written, number);
    float back = 0;
    fuzz::Require(ReadValue(written, back) && back == number);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string text(reinterpret_cast<const char*>(data), size);
    CheckPath(text);
    CheckValues(text);
    PrepareText(text);
    Check<LinkRecord>(text, &ReadLink, &ReadLink, &WriteLink);
    Check<PictureRecord>(text, &ReadPicture, &ReadPicture, &WritePicture);
    Check<PictureRecord>(text, &ReadOldPicture, &ReadPicture, &WritePicture);
    return 0;
}
