#include "qt/shortcuts/qt_clipboard.h"

#include "qt/core/convert.h"
#include "qt/shortcuts/foreign_data.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace quill {
namespace {

// Null while there is no desktop, and where nothing was copied.
const QMimeData* Content(const DisplayHolder& display) {
    return display.It ? QGuiApplication::clipboard()->mimeData() : nullptr;
}

} // namespace

ClipboardData QtClipboard::Read() const {
    ClipboardData data;
    const QMimeData* content = Content(display_);
    if (content == nullptr) return data;
    ForeignData foreign = ReadForeignData(*content);
    data.Files = std::move(foreign.Files);
    data.Addresses = std::move(foreign.Addresses);
    data.Cut = foreign.Cut;
    data.Text = PlainTextOf(*content);
    return data;
}

bool QtClipboard::HasSomething() const {
    const QMimeData* content = Content(display_);
    return content != nullptr && HoldsForeignData(*content);
}

} // namespace quill
