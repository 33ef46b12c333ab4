// Damage: what is wrong with a file, where, and what a person is told and asked about it. The readers only
// find it; what happens then is decided by the loading (load.h).
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace quill {

struct frmMain;

enum class DamageKind {
    BadValue,   // Value does not fit Tag
    CutOff,     // the file ends in the middle of Tag
    NoHead,     // nothing in it says what it is
    Binary,     // it holds NUL bytes
    LongLine,   // a line beyond every sensible length
    TooLarge,   // the file itself is
    Unreadable, // the system does not give it; Value holds its words
};

struct Damage {
    DamageKind Kind = DamageKind::BadValue;
    std::size_t Line = 0; // from 1; 0: the file as a whole
    std::string Tag;      // with its brackets; empty outside of any
    std::string Value;    // as it stands in the file
    std::string File;     // full path; empty until the loading adds it
};

// One sentence or two: file, line, tag and value.
std::string DamageText(const frmMain& Main, const Damage& damage);

// What goes on without a damaged file is.
enum class DamagedSet { Settings, Containers, Recovery };

// The one box. True: go on. Closed in any other way is "end".
bool AskAboutDamage(frmMain& Main, DamagedSet set, const std::vector<Damage>& found);

// Copies the file to "<name>.damaged", a free name; a file that can't even be copied gets that name itself.
// False when nothing could be done.
bool KeepDamaged(frmMain& Main, const std::string& path);
// Keeps a copy of a file in an older format beside it, as "<name>.older", once. Files
// beyond the limit are not compared.
void KeepOlder(frmMain& Main, const std::string& path, std::uint64_t limit);

} // namespace quill
