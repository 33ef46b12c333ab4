// AccessibleElement: a painted element as assistive technology knows it. It holds no state: every answer is
// read from the tables, so that it can't be out of date; when its object dies or moves elsewhere it is
// invalid. A note tells its text as well, and a scroll bar its place.
#pragma once

#include "core/surfaces.h"

#include <QAccessible>
#include <QPointer>

#include <memory>

namespace quill {

struct frmMain;
class SurfaceWidget;

QAccessible::State StateOf(const ElementInfo& info);
QAccessible::Role RoleOf(Role role);

class AccessibleElement : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessibleElement(SurfaceWidget& surface, ElementId id);

    ElementId Id() const { return id_; }

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text which) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override; // of what is scrolled out: where it would be
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    const frmMain* Main() const; // null when the element is invalid
    ElementInfo Info() const;

    QPointer<SurfaceWidget> surface_;
    ElementId id_;
    std::unique_ptr<QAccessibleTextInterface> text_;
    std::unique_ptr<QAccessibleValueInterface> value_;
};

// Does it in a turn of its own, since it may wait for a person, and not behind an open question. Element
// None: the surface's own.
void DoLater(SurfaceWidget& surface, ElementId element, const QString& action);

} // namespace quill
