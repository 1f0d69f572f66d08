#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "support/memory.h"

namespace {
uint32_t words_for(uint32_t bits) { return static_cast<uint32_t>((uint64_t{bits} + 31) / 32); }
}  // namespace

BITVEC::~BITVEC() { free(words_m); }

BITVEC &BITVEC::operator=(const BITVEC &other)
{
    if (this == &other) return *this;
    if (other.nwords_m > capacity_m) {
        free(words_m);
        words_m = static_cast<uint32_t *>(safemalloc(sizeof(uint32_t) * other.nwords_m));
        capacity_m = other.nwords_m;
    }
    if (other.nwords_m) std::memcpy(words_m, other.words_m, sizeof(uint32_t) * other.nwords_m);
    nbits_m = other.nbits_m;
    nwords_m = other.nwords_m;
    return *this;
}

// Bits past the count are kept clear so that whole-word operations need no
// masks.
void BITVEC::mask_tail()
{
    if (nwords_m && nbits_m % 32) words_m[nwords_m - 1] &= (1u << (nbits_m % 32)) - 1;
}

void BITVEC::bv_resize(uint32_t bits)
{
    uint32_t nw = words_for(bits);
    if (nw <= capacity_m) {
        if (nw > nwords_m) std::fill(words_m + nwords_m, words_m + nw, 0u);
        nbits_m = bits;
        nwords_m = nw;
        mask_tail();
        return;
    }
    // Beyond the capacity the new words start out set.
    uint32_t *words = static_cast<uint32_t *>(safemalloc(sizeof(uint32_t) * nw));
    std::fill(words, words + nw, ~0u);
    if (nwords_m) std::memcpy(words, words_m, sizeof(uint32_t) * nwords_m);
    free(words_m);
    words_m = words;
    capacity_m = nw;
    nbits_m = bits;
    nwords_m = nw;
    mask_tail();
}

void BITVEC::bv_set(uint32_t i)
{
    if (i >= nbits_m) {
        uint32_t old = nbits_m;
        bv_resize(i + 1);
        bv_clr(old, i);
    }
    words_m[i / 32] |= 1u << (i % 32);
}

void BITVEC::bv_set_all()
{
    std::fill(words_m, words_m + nwords_m, ~0u);
    mask_tail();
}

bool BITVEC::bv_any() const
{
    return std::any_of(words_m, words_m + nwords_m, [](uint32_t w) { return w != 0; });
}

void BITVEC::bv_clr(uint32_t from, uint32_t to)
{
    if (from > to || to == 0xFFFFFFFFu) return;
    if (to >= nbits_m) bv_resize(to + 1);
    for (uint32_t i = from; i <= to;) {
        if (i % 32 == 0 && to - i >= 31) {
            words_m[i / 32] = 0;
            i += 32;
        } else {
            words_m[i / 32] &= ~(1u << (i % 32));
            ++i;
        }
    }
}

void BITVEC::bv_diff(const BITVEC &a, const BITVEC &b)
{
    BITVEC keep_b;
    const BITVEC *pb = &b;
    if (&b == this) {
        keep_b = b;
        pb = &keep_b;
    }
    if (&a != this) *this = a;
    uint32_t n = std::min(nwords_m, pb->nwords_m);
    for (uint32_t i = 0; i < n; ++i) words_m[i] &= ~pb->words_m[i];
}

void BITVEC::bv_merge(const BITVEC &other)
{
    if (other.nbits_m > nbits_m) {
        uint32_t old = nbits_m;
        bv_resize(other.nbits_m);
        bv_clr(old, other.nbits_m - 1);
    }
    for (uint32_t i = 0; i < other.nwords_m; ++i) words_m[i] |= other.words_m[i];
}

bool BITVEC::bv_intersects(const BITVEC &other) const
{
    uint32_t n = std::min(nwords_m, other.nwords_m);
    for (uint32_t i = 0; i < n; ++i)
        if (words_m[i] & other.words_m[i]) return true;
    return false;
}

void BITVEC::bv_copy_seg(const BITVEC &other, uint32_t from, uint32_t to)
{
    if (from > to || to == 0xFFFFFFFFu) return;
    if (to >= nbits_m) {
        uint32_t old = nbits_m;
        bv_resize(to + 1);
        bv_clr(old, to);
    }
    for (uint32_t i = from; i <= to; ++i) {
        if (other.bv_test(i))
            words_m[i / 32] |= 1u << (i % 32);
        else
            words_m[i / 32] &= ~(1u << (i % 32));
    }
}

bool BITVEC::operator==(const BITVEC &other) const
{
    return nbits_m == other.nbits_m &&
           std::equal(words_m, words_m + nwords_m, other.words_m);
}

void BITVEC::bv_print(FILE *stream) const
{
    fprintf(stream, "BITVEC[%u] {", nbits_m);
    const char *sep = "";
    for (uint32_t i = 0; i < nbits_m; ++i) {
        if (!bv_test(i)) continue;
        fprintf(stream, "%s%u", sep, i);
        sep = ",";
    }
    fprintf(stream, "}\n");
}
