#include "persistence/damage.h"

#include "core/frmMain.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "persistence/names.h"
#include "platform/questions.h"

namespace quill {

namespace {

constexpr std::size_t MostTold = 5; // sentences in one box

constexpr std::string_view SentenceFor(DamageKind kind) {
    switch (kind) {
    case DamageKind::BadValue:
        return "%1, line %2: \"%4\" is no value for %3.";
    case DamageKind::CutOff:
        return "%1 ends at line %2, in the middle of %3.";
    case DamageKind::NoHead:
        return "%1 holds nothing that Quillmere can read.";
    case DamageKind::Binary:
        return "%1, line %2: there are bytes that are no text.";
    case DamageKind::LongLine:
        return "%1, line %2: the line is longer than 4 MB.";
    case DamageKind::TooLarge:
        return "%1 is larger than 256 MB.";
    case DamageKind::Unreadable:
        return "%1 can't be read: %4.";
    }
    return {};
}

constexpr std::string_view QuestionFor(DamagedSet set) {
    switch (set) {
    case DamagedSet::Settings:
        return "Go on with the settings that stand before it? A copy of the file is kept beside it, under a "
               "name "
               "that ends in \".damaged\".";
    case DamagedSet::Containers:
        return "Go on without it? A copy of the file is kept beside it, under a name that ends in "
               "\".damaged\"; "
               "all other containers are loaded.";
    case DamagedSet::Recovery:
        return "These are the changes since the last save. Go on with the workspace as it was saved? The "
               "damaged "
               "files are kept under other names.";
    }
    return {};
}

std::string Sentences(const frmMain& Main, const std::vector<Damage>& found) {
    std::string text;
    for (std::size_t told = 0; told < found.size() && told < MostTold; ++told)
        text += DamageText(Main, found[told]) + "\r\n";
    if (found.size() > MostTold)
        text += Tr(Main, "%1 more files are damaged.", std::to_string(found.size() - MostTold)) + "\r\n";
    return text;
}

} // namespace

std::string DamageText(const frmMain& Main, const Damage& damage) {
    return Tr(Main, SentenceFor(damage.Kind), damage.File, std::to_string(damage.Line), damage.Tag,
              damage.Value);
}

bool AskAboutDamage(frmMain& Main, DamagedSet set, const std::vector<Damage>& found) {
    const std::string text = Sentences(Main, found) + "\r\n" + Tr(Main, QuestionFor(set)) + "\r\n\r\n" +
                             Tr(Main, "\"No\" ends Quillmere and changes nothing on the disk.");
    const DialogPause pause(Main);
    return Main.P.Questions.MsgBox(text, BoxYesNo | BoxWarning, ProgramName) == AnswerYes;
}

bool KeepDamaged(frmMain& Main, const std::string& path) {
    Files& files = Main.P.Files;
    const std::string name = FreeName(files, path + ".damaged");
    return files.Copy(path, name).Ok() || files.Rename(path, name).Ok();
}

void KeepOlder(frmMain& Main, const std::string& path, std::uint64_t limit) {
    Files& files = Main.P.Files;
    const std::string name = path + ".older";
    const auto kept = files.Read(name, limit), now = files.Read(path, limit);
    if (kept && now && kept.Value() == now.Value()) return;
    (void)files.Copy(path, FreeName(files, name));
}

} // namespace quill
