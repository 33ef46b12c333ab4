// The place of a container's scroll bar for assistive technology, in pixels that the content is moved up.
#pragma once

#include "qt/core/attachment.h"

#include <QAccessible>

#include <memory>

namespace quill {

std::unique_ptr<QAccessibleValueInterface> MakeAccessibleScroll(const Attachment& attached, int container);

} // namespace quill
