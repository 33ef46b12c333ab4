// AccessibleSurface: a surface as assistive technology knows it. Its children are the elements painted on it,
// made when they are first asked for, and behind them the surfaces and boxes that lie on it, in their
// stacking order.
#pragma once

#include "core/surfaces.h"

#include <QAccessibleWidget>

#include <map>
#include <optional>
#include <vector>

namespace quill {

struct frmMain;
class SurfaceWidget;

class AccessibleSurface : public QAccessibleWidget {
public:
    explicit AccessibleSurface(SurfaceWidget& surface);
    ~AccessibleSurface() override;

    QAccessibleInterface* Element(ElementId id); // made if need be
    // Tells those who listen what has come, gone and changed since the last time, of what they know.
    void Follow();

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    QString text(QAccessible::Text which) const override;
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;

private:
    struct Known {
        QAccessible::Id Id = 0;
        QString Name; // as it was told last
        QAccessible::State State;
    };

    SurfaceWidget* Surface() const; // null while the widget is going
    const frmMain* Main() const;    // null when there is nothing to tell
    ElementInfo Info(ElementId id) const;
    std::vector<ElementId> Elements() const;
    std::vector<QWidget*> Boxes() const;
    void Remember(Known& known, ElementId id);
    void TellChanges(ElementId id, Known& known);
    void TellGone(const std::vector<ElementId>& now);
    void TellCome(const std::vector<ElementId>& now);

    std::map<ElementId, Known> made_;                       // owned by the toolkit's table of interfaces
    mutable std::optional<std::vector<ElementId>> counted_; // the children as somebody knows them
    std::optional<Known> own_;                              // nothing before somebody listened
};

} // namespace quill
