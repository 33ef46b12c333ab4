// Drags: drag and drop between this program and others, both directions. What other programs send arrives
// through the handlers DragOver, DragLeave and DragDrop (core/handlers.h).
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quill {

// One of our own objects in flight. It travels in a format that only this program reads, beside the files
// that it stands for.
struct DraggedObject {
    std::uint8_t Kind = 1; // 1 a shortcut, 2 a picture, as in the undo records
    std::int32_t Index = -1;
    bool operator==(const DraggedObject&) const = default;
};

// What is carried. Every answer to a drop is a copy, so that the source deletes nothing of its own.
struct DragData {
    std::vector<DraggedObject> Objects; // of this running program; empty for what comes from elsewhere
    std::vector<std::string> Files;     // paths
    std::vector<std::string> Addresses; // http, https and others that are no files
    std::string Text;                   // plain; empty: none
};

enum class DropAnswer { Refused, Copied };

class Drags {
public:
    virtual ~Drags() = default;

    // Carries the objects with the pointer until they are dropped: a question, which runs a loop of its own.
    // grip is the pointer's place in the picture of what is carried, twips. Refused when nobody took it or it
    // was cancelled. A drop inside this program has been handled before it returns.
    virtual DropAnswer StartDrag(const DragData& data, float gripX, float gripY) = 0;
};

} // namespace quill
