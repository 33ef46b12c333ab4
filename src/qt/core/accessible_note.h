// The text of a painted note for assistive technology, to be read; it is edited in the box that opens for it.
#pragma once

#include "qt/core/attachment.h"

#include <QAccessible>

#include <memory>

namespace quill {

// The place of the whole stands for that of each letter.
std::unique_ptr<QAccessibleTextInterface> MakeAccessibleNote(const Attachment& attached, int container,
                                                             const QAccessibleInterface& whole);

} // namespace quill
