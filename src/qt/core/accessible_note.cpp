#include "qt/core/accessible_note.h"

#include "core/frmMain.h"
#include "qt/core/convert.h"

namespace quill {
namespace {

class AccessibleNote : public QAccessibleTextInterface {
public:
    AccessibleNote(const Attachment& attached, int container, const QAccessibleInterface& whole)
        : attached_(attached), container_(container), whole_(whole) {}

    // Nothing in it is selected, and no caret stands in it.
    void selection(int, int* start, int* end) const override { *start = *end = 0; }
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    int cursorPosition() const override { return -1; }
    void setCursorPosition(int) override {}
    void scrollToSubstring(int, int) override {}

    QString text(int start, int end) const override { return Whole().mid(start, end - start); }
    int characterCount() const override { return static_cast<int>(Whole().size()); }
    QRect characterRect(int) const override { return whole_.rect(); }
    int offsetAtPoint(const QPoint&) const override { return -1; }
    QString attributes(int, int* start, int* end) const override {
        *start = 0;
        *end = characterCount();
        return {};
    }

private:
    QString Whole() const {
        if (!attached_.Alive() || !IsLive(attached_.Main->Containers, container_)) return {};
        return Text(attached_.Main->ConView(container_).ContainerNote.Text).remove(QLatin1Char('\r'));
    }

    const Attachment& attached_;
    int container_;
    const QAccessibleInterface& whole_;
};

} // namespace

std::unique_ptr<QAccessibleTextInterface> MakeAccessibleNote(const Attachment& attached, int container,
                                                             const QAccessibleInterface& whole) {
    return std::make_unique<AccessibleNote>(attached, container, whole);
}

} // namespace quill
