// LauncherDesk: the field and the list of the Keyboard Launcher, laid over its painted box while that is
// open.
#pragma once

#include "qt/core/attachment.h"

#include <QPointer>

#include <cstdint>
#include <functional>

class QWidget;

namespace quill {

class Fonts;
class SearchField;
class SearchList;

class LauncherDesk {
public:
    // drain takes the marks at once: letters that are typed faster than the box opens go into it.
    LauncherDesk(const Attachment& attached, const Fonts& fonts, std::function<void()> drain);
    ~LauncherDesk();

    // After a turn of marks: the field follows the box, takes what the logic has put into it, and goes with
    // it. surface is asked for the widget of the box; it may have none.
    void Follow(const std::function<QWidget*()>& surface);
    void Raise(); // the list, above all that lies on the workspace

private:
    void Make(QWidget& surface);
    void Open(QWidget& surface);
    void Close();

    const Attachment& attached_;
    const Fonts& fonts_;
    std::function<void()> drain_;
    QPointer<SearchField> field_; // made with the first box, and kept
    QPointer<SearchList> list_;
    std::uint32_t fulfilled_ = 0; // the last wish for the keyboard
    bool open_ = false;
};

} // namespace quill
