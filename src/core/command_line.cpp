#include "core/start.h"

#include "core/frmMain.h"

#include <algorithm>

namespace quill {
namespace {

struct Switch {
    std::string_view Name;
    bool StartOptions::*Flag;
    std::string_view Help;
};

constexpr Switch switches[] = {
    {"--help", &StartOptions::Help, "show this and end"},
    {"--version", &StartOptions::Version, "show the version and end"},
    {"--toggle", &StartOptions::Toggle, "call the running workspace as the hotkey does, or start it"},
    {"--backup", &StartOptions::Backup, "pack the saved settings and containers into a zip file and end"},
    {"--silent", &StartOptions::Silent, "with --backup: say nothing when it is done"},
    {"--nosplash", &StartOptions::NoSplash, "start without the splash screen"},
    {"--loadrss", &StartOptions::LoadRss, "refresh the news feeds at the start"},
};

std::string Normalised(const std::vector<std::string>& arguments) {
    std::string text;
    for (const auto& argument : arguments) text += (text.empty() ? "" : " ") + argument;
    for (auto& letter : text)
        letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// The older forms are found by position in the whole text, each by a rule of its own.
void ReadOlderForms(StartOptions& options) {
    const auto& text = options.CommandLine;
    const auto holds = [&](std::string_view word) { return text.find(word) != std::string::npos; };
    options.Backup = text.starts_with("/backup");
    options.HelpBox = !options.Backup && text == "/?";
    options.Silent = holds("/silent");
    options.NoSplash = holds("/nosplash");
    options.LoadRss = text.starts_with("/loadrss");
    options.QuietFeedNames = holds("/loadrss");
}

void ReadUsualForms(const std::vector<std::string>& arguments, StartOptions& options) {
    for (const auto& argument : arguments) {
        const auto name = Normalised({argument});
        if (!name.starts_with("--")) continue;
        const auto known = std::ranges::find(switches, name, &Switch::Name);
        if (known != std::end(switches))
            options.*known->Flag = true;
        else if (options.Unknown.empty())
            options.Unknown = argument;
    }
    options.QuietFeedNames = options.QuietFeedNames || options.LoadRss;
}

} // namespace

StartOptions ReadCommandLine(const std::vector<std::string>& arguments) {
    StartOptions options;
    options.CommandLine = Normalised(arguments);
    ReadOlderForms(options);
    ReadUsualForms(arguments, options);
    return options;
}

std::string CommandLineHelp() {
    return "Command-line Options:\n\n"
           "/nosplash\t- Suppress splash screen\n"
           "/loadrss\t\t- Load RSS newsfeeds on startup\n"
           "/backup\t\t- Backup Quillmere settings into a zip file\n"
           "/silent\t\t- Hide 'Backup Complete' notification";
}

std::string PlainHelp() {
    std::string text = std::string("Usage: quillmere [option ...]\n\n") +
                       "A sliding desktop workspace. A second start calls the running one out.\n\n";
    for (const auto& entry : switches) {
        const std::string name(entry.Name);
        text += "  " + name + std::string(13 - name.size(), ' ') + std::string(entry.Help) + "\n";
    }
    return text + "\n/nosplash, /loadrss, /backup, /silent and /? are understood as well.\n";
}

} // namespace quill
