#include "core/frmMain.h"

#include "persistence/load.h"

namespace quill {

frmMain::frmMain(Platform platform)
    : P(platform), Containers(1), ContainerViews(1), Shortcuts(1), ShortcutViews(1), Pictures(1),
      PictureViews(1) {
    InitDefaultSettings(Settings);
    InitAppearanceDefaults(Settings);
    View.Caption = std::string(ProgramName) + " " + ProgramVersion;
}

} // namespace quill
