#include "qt/shortcuts/foreign_data.h"

#include "qt/core/convert.h"
#include "shortcuts/uri_list.h"

#include <QMimeData>
#include <QSysInfo>
#include <QUrl>

#include <algorithm>
#include <iterator>
#include <optional>
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

// The address and its title, a line each; browsers write them with two bytes a letter, some older ones do
// not.
ForeignData ReadAddressAndTitle(const QByteArray& bytes) {
    const bool wide = bytes.size() >= 2 && bytes.size() % 2 == 0 && bytes[1] == '\0';
    const QByteArray text =
        wide ? QString::fromUtf16(reinterpret_cast<const char16_t*>(bytes.constData()), bytes.size() / 2)
                   .toUtf8()
             : bytes;
    return ReadPlainList(text.left(text.indexOf('\n')));
}

// An address in the form of browsers alone is called a list of files by the toolkit, which then hands it out
// only as it has read it.
ForeignData ReadToolkitsUrls(const QMimeData& mime) {
    if (!mime.hasFormat(QLatin1String(uriList))) return {};
    QByteArray lines;
    for (const QUrl& url : mime.urls()) lines += url.toEncoded() + '\n';
    return ReadPlainList(lines);
}

struct Format {
    const char* Name;
    ForeignData (*Read)(const QByteArray&);
};

// The first that holds something counts.
constexpr Format formats[] = {
    {"x-special/gnome-copied-files", &ReadCopiedFiles},
    {uriList, &ReadPlainList},
    {"text/x-moz-url", &ReadAddressAndTitle},
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
    return ReadToolkitsUrls(mime);
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
