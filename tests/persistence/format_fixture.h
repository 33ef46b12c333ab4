// What the tests of the file formats share: a computer with files, the load of them as the start does it, and
// texts that are written with plain line ends and meant with CR LF.
#pragma once

#include "core/frmMain.h"
#include "fake/computer.h"
#include "persistence/container_file.h"
#include "persistence/load.h"
#include "persistence/settings_file.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace quill::test {

inline std::string Crlf(std::string_view text) {
    std::string lines;
    for (const char letter : text) lines += letter == '\n' ? std::string("\r\n") : std::string(1, letter);
    return lines;
}

// With plain line ends, so that a difference can be read.
inline std::string Lf(std::string text) {
    std::erase(text, '\r');
    return text;
}

struct Formats {
    Formats() {
        Main.SettingsFolder = fake::SettingsFolder;
        Main.Settings.Effect = false;
    }

    std::string Path(const std::string& name) const { return fake::SettingsFolder + "/" + name; }
    void PutSettings(const std::string& text) {
        files.Settings = Path("Quillmere.ini");
        Computer.Files.Put(files.Settings, Crlf(text));
    }
    void PutContainer(const std::string& text) { PutRaw(Crlf(text)); }
    void PutRaw(const std::string& bytes) {
        files.Containers.push_back(Path("Containers/" + std::to_string(files.Containers.size()) + ".con"));
        Computer.Files.Put(files.Containers.back(), bytes);
    }
    // The order of the start. False: it ended.
    bool Load() {
        return SettleGeneration(Main, files) && ReadSettingsFile(Main, files, Deferred) &&
               ReadContainerFiles(Main, files, Startup);
    }

    const clsContainer& Con(int index) const { return Main.Con(index); }
    const ContainerView& View(int index) const { return Main.ConView(index); }
    std::string Written(int index) const { return Lf(ContainerText(Main, index)); }
    std::string WrittenSettings() const { return Lf(SettingsText(Main, false)); }
    int LastShortcut() const { return Main.NextShortcutIndex - 1; }

    fake::Computer Computer;
    frmMain Main{Computer.MakePlatform()};
    GenerationFiles files;
    DeferredSettings Deferred;
    std::vector<int> Startup;
};

// The value line behind a tag of a written text; "(none)" when the tag is not there.
inline std::string ValueOf(const std::string& text, const std::string& tag) {
    const std::size_t at = ("\n" + text).find("\n" + tag + "\n");
    if (at == std::string::npos) return "(none)";
    const std::size_t start = at + tag.size() + 1;
    return text.substr(start, text.find('\n', start) - start);
}

} // namespace quill::test
