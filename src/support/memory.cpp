#include "support/memory.h"

#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {
out_of_memory_hook oom_hook = nullptr;
}  // namespace

void set_out_of_memory_hook(out_of_memory_hook hook) { oom_hook = hook; }

void out_of_memory()
{
    if (oom_hook) oom_hook();
    fflush(stdout);
    fputs("ERROR: out of memory\n", stderr);
    exit(1);
}

void prepare_heap()
{
#if defined(MADV_HUGEPAGE) && defined(M_MMAP_THRESHOLD) && defined(M_TRIM_THRESHOLD)
    // Blocks below the mmap threshold come from the break: a few of them move
    // it far ahead, the range is marked, and freeing them gives it back to the
    // heap's top without touching it. Only the pages written later are faulted.
    constexpr size_t block = 30u << 20;   // below the largest mmap threshold
    constexpr int blocks = 4;
    if (!mallopt(M_MMAP_THRESHOLD, 32 << 20) || !mallopt(M_TRIM_THRESHOLD, 1 << 30)) return;
    auto *before = static_cast<char *>(sbrk(0));
    void *taken[blocks] = {};
    for (void *&p : taken) p = malloc(block);
    auto *after = static_cast<char *>(sbrk(0));
    // Another allocator (a sanitizer's, say) leaves the break alone.
    if (before != reinterpret_cast<char *>(-1) && after != reinterpret_cast<char *>(-1) &&
        after - before >= static_cast<ptrdiff_t>(block) * blocks) {
        constexpr uintptr_t huge = 2u << 20;
        const uintptr_t from = (reinterpret_cast<uintptr_t>(before) + huge - 1) & ~(huge - 1);
        const uintptr_t to = reinterpret_cast<uintptr_t>(after) & ~(huge - 1);
        if (to > from) madvise(reinterpret_cast<void *>(from), to - from, MADV_HUGEPAGE);
    }
    for (int i = blocks - 1; i >= 0; --i) free(taken[i]);
#endif
}

void *safemalloc(size_t n)
{
    void *p = malloc(n ? n : 1);
    if (!p) out_of_memory();
    return p;
}

void *saferealloc(void *p, size_t n)
{
    if (!p) return safemalloc(n);
    if (n == 0) n = 1;   // realloc(p, 0) may free p
    void *q = realloc(p, n);
    if (q) return q;
    // A fresh block may still be had where growing in place failed.
    q = safemalloc(n);
    size_t old = malloc_usable_size(p);
    std::memcpy(q, p, old < n ? old : n);
    free(p);
    return q;
}

void *safecalloc(size_t count, size_t n)
{
    if (count == 0 || n == 0) count = n = 1;
    void *p = calloc(count, n);
    if (!p) out_of_memory();
    return p;
}

char *safestrdup(const char *s)
{
    if (!s) return nullptr;
    size_t n = strlen(s) + 1;
    return static_cast<char *>(std::memcpy(safemalloc(n), s, n));
}

void grow_table(void **table, unsigned *count, unsigned element_size)
{
    unsigned old = (*count)++;
    if (old % 100 != 0) return;
    size_t bytes = static_cast<size_t>(*count + 99) * element_size;
    *table = *table ? saferealloc(*table, bytes) : safemalloc(bytes);
}
