// AccessibleWindow: the workspace's window as assistive technology knows it. Its children are the workspace
// and, behind it, the menu that is open: the toolkit leaves menus out, and nobody could look at their lines.
#pragma once

#include "qt/core/accessible_place.h"

#include <QAccessibleWidget>
#include <QList>
#include <QWidget>

namespace quill {

class AccessibleWindow : public QAccessibleWidget {
public:
    explicit AccessibleWindow(QWidget& window) : QAccessibleWidget(&window, QAccessible::Window) {}

    QRect rect() const override { return ToldRect(*widget(), widget()->rect()); }
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

private:
    QList<QWidget*> OpenMenus() const;
};

} // namespace quill
