#include "qt/system/memory.h"

#include <malloc.h>

namespace quill {

void UseTwoHeaps() {
#ifdef M_ARENA_MAX
    mallopt(M_ARENA_MAX, 2);
#endif
}

void GiveMemoryBack() {
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

} // namespace quill
