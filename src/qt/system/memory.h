// Memory: what a program that stands on a desktop all day owes it. Icons and pictures are read in a burst of
// large and short-lived blocks; afterwards the free ones go back to the system.
#pragma once

namespace quill {

void UseOneHeap();     // instead of one a thread; before any thread begins
void GiveMemoryBack(); // takes a moment; off the thread

} // namespace quill
