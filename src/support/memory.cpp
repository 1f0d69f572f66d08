#include "support/memory.h"

#include <malloc.h>

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
