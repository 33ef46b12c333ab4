// Deaths: runs something that changes the disk once to its end, and then again with a death after each single
// operation, clean and in the middle of it. After each death the next start must have one of two generations
// whole, and after the first death that leaves the newer one no later death may leave the older. The next
// start itself is let die in the same way, after each of its own operations.
#pragma once

#include "fake/computer.h"

#include <functional>
#include <string>

namespace quill::test {

using Act = std::function<void(fake::Computer&)>;
using Look = std::function<std::string(fake::Computer&)>; // starts the program: one text of what it has

struct Scene {
    Act Stage; // what stands on the disk before
    Act Change;
    quill::test::Look Look;
};

// Files of the user's that lie in our folders. Nothing may ever touch them.
void PutStrays(fake::Computer& computer);
void ExpectStrays(const fake::Computer& computer);

enum class Generations { Differ, Same }; // whether the change can be seen by a start at all

void DieEverywhere(const Scene& scene, Generations generations = Generations::Differ);

} // namespace quill::test
