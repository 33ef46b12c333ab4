// Memory: what a program that stands on a desktop all day owes it. Icons and pictures are read in a burst of
// large and short-lived blocks; afterwards the free ones go back to the system.
#pragma once

namespace quill {

// Instead of one a thread; before any thread begins. The second one keeps the thread that lists the fonts and
// the main thread from waiting for each other at every block.
void UseTwoHeaps();
void GiveMemoryBack(); // takes a moment; off the thread

} // namespace quill
