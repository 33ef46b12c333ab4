#include "qt/shortcuts/foreign_data.h"

#include "qt/core/convert.h"
#include "shortcuts/uri_list.h"

#include <QMimeData>
#include <QSysInfo>

#include <algorithm>
#include <iterator>
#include <string_view>

namespace quill {
namespace {

constexpr qsizetype longestText = 1024 * 1024; // letters
constexpr const char *plainText = "text/plain", *uriList = "text/uri-list";
constexpr const char* kdeCut = "application/x-kde-cutselection"; // "1" beside a list of files

std::string_view View(const QByteArray& bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

UriList ReadUris(std::string_view lines) {
    return ReadUriList(lines, Bytes(QSysInfo::machineHostName()));
}

ForeignData ReadPlainList(const QByteArray& bytes) {
    UriList list = ReadUris(View(bytes));
    return {std::move(list.Files), std::move(list.Addresses)};
}

// "copy" or "cut" on a line of its own, then the list.
ForeignData ReadCopiedFiles(const QByteArray& bytes) {
    const qsizetype end = bytes.indexOf('\n');
    if (end < 0) return {};
    ForeignData data = ReadPlainList(bytes.mid(end + 1));
    data.Cut = bytes.left(end).trimmed() == "cut";
    return data;
}

// The address and its title, a line each.
ForeignData ReadAddressAndTitle(const QByteArray& bytes) {
    return ReadPlainList(bytes.left(bytes.indexOf('\n')));
}

struct Format {
    const char* Name;
    ForeignData (*Read)(const QByteArray&);
};

// The first that holds something counts. The wide form of browsers is a list of files by the time that the
// toolkit hands it out, and what is offered as a list goes out in that form as well.
constexpr Format formats[] = {
    {"x-special/gnome-copied-files", &ReadCopiedFiles},
    {uriList, &ReadPlainList},
    {"_NETSCAPE_URL", &ReadAddressAndTitle},
};

} // namespace

ForeignData ReadForeignData(const QMimeData& mime) {
    for (const Format& format : formats) {
        const QString name = QLatin1String(format.Name);
        if (!mime.hasFormat(name)) continue;
        ForeignData data = format.Read(mime.data(name));
        if (data.Files.empty() && data.Addresses.empty()) continue;
        data.Cut |= mime.data(QLatin1String(kdeCut)).startsWith('1');
        return data;
    }
    return {};
}

// The toolkit makes a text of a list of files where there is no other; that one is not asked for.
std::string PlainTextOf(const QMimeData& mime) {
    return mime.hasFormat(QLatin1String(plainText)) ? Bytes(mime.text().left(longestText)) : std::string();
}

bool HoldsForeignData(const QMimeData& mime) {
    return mime.hasFormat(QLatin1String(plainText)) ||
           std::ranges::any_of(
               formats, [&](const Format& format) { return mime.hasFormat(QLatin1String(format.Name)); });
}

} // namespace quill
