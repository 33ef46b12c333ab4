// TrayMenu: the menu of the tray icon, filled from the logic each time before it shows. A tray of another
// process may show what it was told last, so it is kept filled.
#pragma once

#include "platform/questions.h"
#include "qt/core/attachment.h"

#include <QMenu>

#include <vector>

namespace quill {

class TrayMenu : public QMenu {
public:
    explicit TrayMenu(const Attachment& attached);

private:
    void Refill();
    void Choose(int id);

    const Attachment& attached_;
    std::vector<MenuLine> shown_;
};

} // namespace quill
