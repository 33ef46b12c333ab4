#include "qt/core/display.h"

#include "qt/core/convert.h"

namespace quill {

Display::Display(ToolkitArguments& arguments, const Attachment& attached, const std::string& dataFolder,
                 Worker& worker)
    : Application(arguments.Count, arguments.List),
      Looks(Text(dataFolder) + QStringLiteral("/symbols"), worker),
      Stage(attached, Looks, dataFolder + "/../icons/hicolor") {}

} // namespace quill
