#include "qt/shortcuts/qt_drags.h"

#include "appearance/carried.h"
#include "core/frmMain.h"
#include "qt/appearance/qt_canvas.h"
#include "qt/core/convert.h"
#include "qt/shortcuts/foreign_data.h"
#include "shortcuts/uri_list.h"

#include <QDrag>
#include <QMimeData>
#include <QPainter>
#include <QPixmap>
#include <QUrl>

#include <algorithm>
#include <cmath>

namespace quill {
namespace {

constexpr const char* objectsFormat = "application/x-quillmere-objects"; // a line each: kind and index
constexpr const char* uriFormat = "text/uri-list";
constexpr qreal largestPicture = 240; // pixels; a larger one would hide where it is dropped

QByteArray ObjectLines(const DragData& data) {
    QByteArray lines;
    for (const auto& object : data.Objects)
        lines += QByteArray::number(object.Kind) + ' ' + QByteArray::number(object.Index) + '\n';
    return lines;
}

std::vector<DraggedObject> ReadObjects(const QByteArray& lines) {
    std::vector<DraggedObject> objects;
    for (const QByteArray& line : lines.split('\n')) {
        const auto words = line.split(' ');
        if (words.size() == 2)
            objects.push_back({static_cast<std::uint8_t>(words[0].toUInt()), words[1].toInt()});
    }
    return objects;
}

// As it stands, where that can be a line of the list; else as the toolkit writes it for the net.
QByteArray UriOf(const std::string& address) {
    const auto isPlain = [](char letter) { return letter > ' ' && letter < 127; };
    if (std::ranges::all_of(address, isPlain)) return QByteArray::fromStdString(address);
    return QUrl(Text(address)).toEncoded();
}

void AddLine(QByteArray& lines, const QByteArray& uri) {
    if (!uri.isEmpty()) lines += uri + "\r\n";
}

QByteArray UriLines(const DragData& data) {
    QByteArray lines;
    for (const auto& file : data.Files) AddLine(lines, QByteArray::fromStdString(FileUri(file)));
    for (const auto& address : data.Addresses) AddLine(lines, UriOf(address));
    return lines;
}

} // namespace

std::unique_ptr<QMimeData> MimeOf(const DragData& data) {
    auto mime = std::make_unique<QMimeData>();
    mime->setData(QLatin1String(objectsFormat), ObjectLines(data));
    if (const QByteArray uris = UriLines(data); !uris.isEmpty())
        mime->setData(QLatin1String(uriFormat), uris);
    if (!data.Text.empty()) mime->setText(Text(data.Text));
    return mime;
}

DragData DragDataOf(const QMimeData& mime, DragSource source) {
    DragData data;
    if (source == DragSource::ThisProgram)
        data.Objects = ReadObjects(mime.data(QLatin1String(objectsFormat)));
    ForeignData foreign = ReadForeignData(mime);
    data.Files = std::move(foreign.Files);
    data.Addresses = std::move(foreign.Addresses);
    const bool nothingElse = data.Objects.empty() && data.Files.empty() && data.Addresses.empty();
    if (nothingElse) data.Text = PlainTextOf(mime);
    return data;
}

DropAnswer QtDrags::StartDrag(const DragData& data, float gripX, float gripY) {
    if (!attached_.Alive() || open_.IsEnding() || data.Objects.empty()) return DropAnswer::Refused;
    auto* drag = new QDrag(&display_.Get().Stage.Main()); // the toolkit deletes it
    QPointF grip(gripX / TwipsPerPixel, gripY / TwipsPerPixel);
    drag->setMimeData(MimeOf(data).release());
    drag->setPixmap(PictureOf(data, grip));
    drag->setHotSpot(grip.toPoint());
    const OpenQuestions::Entry entry(open_, [] { QDrag::cancel(); });
    const bool taken = drag->exec(Qt::CopyAction) != Qt::IgnoreAction;
    return taken ? DropAnswer::Copied : DropAnswer::Refused;
}

QPixmap QtDrags::PictureOf(const DragData& data, QPointF& grip) const {
    auto& display = display_.Get();
    auto& main = display.Stage.Main();
    const Size size = CarriedSize(*attached_.Main, data.Objects);
    const QSizeF pixels(size.Width / TwipsPerPixel, size.Height / TwipsPerPixel);
    const qreal ratio = main.devicePixelRatioF();
    QPixmap picture((pixels * ratio).toSize());
    if (picture.isNull()) return picture;
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    QtCanvas canvas(painter, main, QRegion(QRectF({}, pixels).toAlignedRect()), display.Looks);
    PaintCarried(*attached_.Main, data.Objects, canvas);
    painter.end();
    const qreal shrink = std::min(1.0, largestPicture / std::max(pixels.width(), pixels.height()));
    grip *= shrink;
    return shrink == 1.0 ? picture
                         : picture.scaledToWidth(std::max(1, qRound(picture.width() * shrink)),
                                                 Qt::SmoothTransformation);
}

} // namespace quill
