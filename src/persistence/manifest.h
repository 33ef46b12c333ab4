// Manifest: what a change of the settings folder is going to do, written down beside the files that it
// brings, so that a start can do the rest of it after a death. It guards itself with a checksum: half of one
// is none.
#pragma once

#include "persistence/persistence_state.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quill {

// In the order in which the steps of one change are done. Each can be done again without harm.
enum class StepKind {
    Aside, // From gets the free name To; done when To stands
    Drop,  // From is removed
    Move,  // From takes the place of To, whatever stands there; done when From is gone
    Keep,  // From stays as it stands
};

// Names are relative to the settings folder.
struct Step {
    StepKind Kind = StepKind::Keep;
    std::string From, To; // To is empty for Drop and Keep
    WrittenFile Sum;      // of the bytes of a Move or a Keep; unused otherwise
};

struct Manifest {
    bool Durable = false; // it counts only when it is on the disk: a committed generation
    std::vector<Step> Steps;
};

WrittenFile SumOf(std::string_view bytes);
bool SameSum(const WrittenFile& one, const WrittenFile& other);

std::string ManifestText(const Manifest& manifest);
std::optional<Manifest> ReadManifest(std::string_view text); // none: it is not one, or not whole

} // namespace quill
