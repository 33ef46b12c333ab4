#include "qt/appearance/font_list.h"

#include <csignal>
#include <dlfcn.h>

namespace quill {
namespace {

// The library that the toolkit itself lists fonts with, if it does; it keeps the list for whoever asks next.
using Init = int (*)();

Init FindInit() {
    return reinterpret_cast<Init>(dlsym(RTLD_DEFAULT, "FcInit"));
}

// Signals are the main thread's business.
void List(Init init) {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_BLOCK, &all, nullptr);
    init();
}

} // namespace

FontList::FontList() {
    if (const Init init = FindInit()) thread_ = std::thread(List, init);
}

void FontList::Wait() {
    if (thread_.joinable()) thread_.join();
}

} // namespace quill
