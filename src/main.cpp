// The program: the Qt platform, handed to the logic.
#include "core/start.h"
#include "qt/qt_platform.h"

int main(int argc, char** argv) {
    quill::qt::QtPlatform platform(argc, argv);
    return quill::Main(platform.Ports(), {argv + 1, argv + argc});
}
