#include <cxxabi.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "support/memory.h"

MZONE **zonelist = nullptr;
unsigned zl_avail = 0;
size_t cur_alloced = 0;
size_t max_alloced = 0;

uint32_t MZONE::next_id = 0;

MZONE::MZONE(uint32_t min_alloc, const char *file, int line)
    : min_alloc_m((min_alloc + 7) & ~7u), id_m(next_id++), name_m(file), line_m(line)
{
    enter_in_zonelist();
}

void MZONE::enter_in_zonelist()
{
    unsigned at = zl_avail;
    grow_table(&zonelist, &zl_avail);
    zonelist[at] = this;
}

MZONE::~MZONE()
{
    owned_m.clear();
    while (cur_m) {
        BLOCK *older = cur_m->next;
        cur_alloced -= cur_m->size;
        free(cur_m->data);
        delete cur_m;
        cur_m = older;
    }
    // Keep the list in order of creation for the reports.
    MZONE **end = zonelist + zl_avail;
    MZONE **pos = std::find(zonelist, end, this);
    if (pos != end) {
        std::copy(pos + 1, end, pos);
        --zl_avail;
    }
}

void MZONE::new_block(size_t n)
{
    uint32_t size = static_cast<uint32_t>(std::max<size_t>(n, min_alloc_m));
    if (size == 0) size = 8;
    BLOCK *b = new BLOCK{static_cast<unsigned char *>(safecalloc(size, 1)), size, cur_m};
    cur_m = b;
    left_m = size;
    cur_alloced += size;
    if (cur_alloced > max_alloced) max_alloced = cur_alloced;
}

char *MZONE::strdup(const char *s)
{
    return s ? strndup(s, std::strlen(s)) : nullptr;
}

char *MZONE::strndup(const char *s, size_t n)
{
    if (!s) return nullptr;
    n = strnlen(s, n);
    char *p = static_cast<char *>(alloc(n + 1));
    std::memcpy(p, s, n);   // the terminator is already zero
    return p;
}

void MZONE::reset()
{
    owned_m.clear();
    if (!cur_m) return;
    for (BLOCK *b = cur_m->next; b;) {
        BLOCK *older = b->next;
        cur_alloced -= b->size;
        free(b->data);
        delete b;
        b = older;
    }
    cur_m->next = nullptr;
    // alloc promises zeroed memory: clear what was handed out.
    std::memset(cur_m->data, 0, cur_m->size - left_m);
    left_m = cur_m->size;
    alloced_m = 0;
}

void MZONE::dump(bool blocks) const
{
    unsigned nblocks = 0;
    size_t bytes = 0;
    for (const BLOCK *b = cur_m; b; b = b->next) {
        ++nblocks;
        bytes += b->size;
    }
    fprintf(stderr, "zone %u (%s:%d): min %u, %u blocks of %zu bytes, %u left, %u in use, %u max\n",
            id_m, name_m ? name_m : "?", line_m, min_alloc_m, nblocks, bytes, left_m, alloced_m,
            max_alloced_m);
    if (!blocks) return;
    for (const BLOCK *b = cur_m; b; b = b->next)
        fprintf(stderr, "    block %p: %u bytes\n", static_cast<const void *>(b->data), b->size);
}

void zreport()
{
    fprintf(stderr, "%u zones, %zu bytes in blocks, %zu at most\n", zl_avail, cur_alloced, max_alloced);
}

void zdump_zones(bool blocks)
{
    zreport();
    for (unsigned i = 0; i < zl_avail; ++i) zonelist[i]->dump(blocks);
}

void *operator new(size_t size, MZONE &zone) { return zone.alloc(size); }
void *operator new[](size_t size, MZONE &zone) { return zone.alloc(size); }
void operator delete(void *, MZONE &) noexcept {}
void operator delete[](void *, MZONE &) noexcept {}

// ---- OALLOC support -----------------------------------------------------------

const char *oalloc_demangle(const char *mangled)
{
    int status = 0;
    char *name = abi::__cxa_demangle(mangled, nullptr, nullptr, &status);
    if (status != 0 || !name) return mangled;
    return name;   // kept for the life of the process, one per pool
}

void oalloc_report(const char *name, long curr, long total, long pool_size)
{
    fprintf(stderr, "%s:%10ld:%10ld:%10ld\n", name, curr, total, pool_size);
}
