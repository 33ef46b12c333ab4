#include "qt/core/attachment.h"

#include "core/frmMain.h"

namespace quill {

bool Attachment::Alive() const {
    return Main != nullptr && !Main->IsExiting;
}

} // namespace quill
