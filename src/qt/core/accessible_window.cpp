#include "qt/core/accessible_window.h"

#include <QMenu>

namespace quill {

QList<QWidget*> AccessibleWindow::OpenMenus() const {
    QList<QWidget*> open;
    for (QMenu* menu : widget()->findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly))
        if (menu->isVisible()) open += menu;
    return open;
}

int AccessibleWindow::childCount() const {
    return QAccessibleWidget::childCount() + static_cast<int>(OpenMenus().size());
}

QAccessibleInterface* AccessibleWindow::child(int index) const {
    const int menu = index - QAccessibleWidget::childCount();
    if (menu < 0) return QAccessibleWidget::child(index);
    return QAccessible::queryAccessibleInterface(OpenMenus().value(menu));
}

int AccessibleWindow::indexOfChild(const QAccessibleInterface* child) const {
    const auto menu = child == nullptr ? -1 : OpenMenus().indexOf(qobject_cast<QWidget*>(child->object()));
    if (menu < 0) return QAccessibleWidget::indexOfChild(child);
    return QAccessibleWidget::childCount() + static_cast<int>(menu);
}

} // namespace quill
