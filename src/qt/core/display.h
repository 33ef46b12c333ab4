// Display: all that exists only while there is a connection to the desktop. Made by Session::OpenDisplay, so
// that a start which needs no window pays for none of it.
#pragma once

#include "qt/appearance/looks.h"
#include "qt/core/stage.h"

#include <QApplication>

#include <memory>
#include <string>
#include <vector>

namespace quill {

// The toolkit's own view of the command line: the program's name alone, so that it reads no switch of ours.
struct ToolkitArguments {
    explicit ToolkitArguments(std::string program)
        : Program(std::move(program)), List{Program.data(), nullptr} {}
    ToolkitArguments(const ToolkitArguments&) = delete;
    ToolkitArguments& operator=(const ToolkitArguments&) = delete;

    std::string Program;
    int Count = 1;
    char* List[2];
};

struct Display {
    Display(ToolkitArguments& arguments, const Attachment& attached, const std::string& dataFolder,
            Worker& worker);

    QApplication Application;
    quill::Looks Looks;
    quill::Stage Stage;
};

struct DisplayHolder {
    std::unique_ptr<Display> It; // empty until the display is open

    Display& Get() const { return *It; }
};

} // namespace quill
