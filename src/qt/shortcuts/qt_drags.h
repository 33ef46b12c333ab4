// QtDrags: drags that begin in this program, and the data of those that come over its surfaces. Files travel
// as text/uri-list, as every file manager reads and writes them; what others send is read by
// qt/shortcuts/foreign_data.h.
#pragma once

#include "platform/drags.h"
#include "qt/core/display.h"
#include "qt/core/open_questions.h"

#include <QByteArray>

#include <memory>

class QMimeData;

namespace quill {

class QtDrags : public Drags {
public:
    QtDrags(const Attachment& attached, const DisplayHolder& display, OpenQuestions& open)
        : attached_(attached), display_(display), open_(open) {}

    DropAnswer StartDrag(const DragData& data, float gripX, float gripY) override;

private:
    QPixmap PictureOf(const DragData& data, QPointF& grip) const;

    const Attachment& attached_;
    const DisplayHolder& display_;
    OpenQuestions& open_;
};

enum class DragSource { ThisProgram, Other };

std::unique_ptr<QMimeData> MimeOf(const DragData& data);
// What is carried, in the logic's terms. Our own objects are believed only of a drag of this very process.
DragData DragDataOf(const QMimeData& mime, DragSource source);

} // namespace quill
