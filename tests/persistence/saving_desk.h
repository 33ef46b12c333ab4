// Saving desk: a fake computer with a workspace on it that saves, dies and starts again. The workspace's rows
// are made by hand here: what is tested is which files stand when, not how a container is made.
#pragma once

#include "core/frmMain.h"
#include "fake/computer.h"
#include "persistence/load.h"

#include <memory>
#include <string>

namespace quill::test {

// A process with an empty workspace that is through with its load.
std::unique_ptr<frmMain> Process(fake::Computer& computer);

int AddContainer(frmMain& Main, const std::string& name, const std::string& note = {});
int AddShortcut(frmMain& Main, Parent parent, const std::string& path);
void Note(frmMain& Main, int container, const std::string& text);
void Delete(frmMain& Main, int container); // the row dies, as after "Delete"

// Three containers with shortcuts, and one shortcut on the workspace. The mark stands in the first note.
void Furnish(frmMain& Main, const std::string& mark);

// The settings and the containers of a generation, bytes and order, whatever the files are called.
std::string Text(const fake::Computer& computer, const GenerationFiles& files);

// A whole start: finishes, chooses, "loads" (reads), takes over. The text of what it has. Checks that after
// it the committed generation is the same, that no recovery file is left and no working folder.
std::string Start(fake::Computer& computer);

std::string At(const std::string& name); // full path below the settings folder
std::string Get(const fake::Computer& computer, const std::string& name);

} // namespace quill::test
