#pragma once
// Allocation that ends the run when memory is exhausted, zone and per-class
// pool allocators, append tables and bit vectors.
#include <boost/ptr_container/ptr_vector.hpp>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <new>
#include <type_traits>
#include <typeinfo>
#include <utility>

// ---- allocation that never returns null ------------------------------------
void *safemalloc(size_t n);
void *saferealloc(void *p, size_t n);   // null p, or a failed realloc, falls back to malloc
void *safecalloc(size_t count, size_t n);
char *safestrdup(const char *s);        // null stays null

// Prepares the heap for a large run: the first megabytes that the heap
// grows by are backed by huge pages where the system offers them, so that
// tens of thousands of page faults become a few dozen. Harmless elsewhere.
void prepare_heap();

// Called instead of the default report-and-exit when set; for tests and for
// hosts that must clean up first. It must not return.
using out_of_memory_hook = void (*)();
void set_out_of_memory_hook(out_of_memory_hook hook);
[[noreturn]] void out_of_memory();

// ---- MZONE: bump allocator, released whole ---------------------------------
// Owned objects of a zone whose destructors run at reset.
struct MZONE_OWNED {
    virtual ~MZONE_OWNED() = default;
};

class MZONE {
public:
    struct BLOCK {
        unsigned char *data;
        uint32_t size;
        BLOCK *next;   // the older one
    };

    // The defaults name the caller's place (std::source_location is not
    // usable with every compiler this builds with).
    explicit MZONE(uint32_t min_alloc = 4096, const char *file = __builtin_FILE(),
                   int line = __builtin_LINE());
    MZONE(const MZONE &) = delete;
    MZONE &operator=(const MZONE &) = delete;
    ~MZONE();

    // Zeroed memory; alignment 8 as long as the minimum block size is a
    // multiple of 8 (set_min_alloc rounds it).
    void *alloc(size_t n) {
        if (left_m < n || left_m == 0) new_block(n);
        void *result = cur_m->data + cur_m->size - left_m;
        left_m = (left_m - n < 8) ? 0 : left_m - static_cast<uint32_t>((n + 8) & ~size_t{7});
        alloced_m += static_cast<uint32_t>(n);
        if (alloced_m > max_alloced_m) max_alloced_m = alloced_m;
        return result;
    }
    char *strdup(const char *s);          // copy of s in the zone; null stays null
    char *strndup(const char *s, size_t n);

    // An object in zone memory whose destructor runs at reset.
    template <class T, class... A>
    T *make(A &&...args) {
        T *p = new (alloc(sizeof(T))) T(std::forward<A>(args)...);
        if constexpr (!std::is_trivially_destructible_v<T>) owned_m.push_back(new DTOR<T>(p));
        return p;
    }
    // A heap object owned by the zone, deleted at reset.
    void own(MZONE_OWNED *obj) { owned_m.push_back(obj); }

    void reset();
    void set_min_alloc(uint32_t n) { min_alloc_m = (n + 7) & ~7u; }
    uint32_t id() const { return id_m; }
    const char *name() const { return name_m; }
    int line() const { return line_m; }
    uint32_t bytes_alloced() const { return alloced_m; }
    uint32_t max_bytes_alloced() const { return max_alloced_m; }
    void dump(bool blocks) const;

    static uint32_t next_id;

private:
    template <class T>
    struct DTOR : MZONE_OWNED {
        explicit DTOR(T *p) : obj(p) {}
        ~DTOR() override { obj->~T(); }
        T *obj;
    };
    void new_block(size_t n);
    void enter_in_zonelist();

    uint32_t min_alloc_m;
    uint32_t left_m = 0;
    BLOCK *cur_m = nullptr;
    uint32_t alloced_m = 0;
    uint32_t max_alloced_m = 0;
    uint32_t id_m;
    const char *name_m;
    int line_m;
    boost::ptr_vector<MZONE_OWNED> owned_m;
};

extern MZONE **zonelist;
extern unsigned zl_avail;
extern size_t cur_alloced;   // block bytes of all zones
extern size_t max_alloced;

void zreport();
void zdump_zones(bool blocks);

void *operator new(size_t size, MZONE &zone);
void *operator new[](size_t size, MZONE &zone);
// Only reached when a constructor throws during placement in a zone.
void operator delete(void *p, MZONE &zone) noexcept;
void operator delete[](void *p, MZONE &zone) noexcept;

// ---- OALLOC<T>: per-class pool, used as a base of T ------------------------
const char *oalloc_demangle(const char *mangled);   // static text; the mangled name on failure
void oalloc_report(const char *name, long curr, long total, long pool_size);

template <class T>
class OALLOC {
public:
    static void *operator new(size_t size) {
        if (oa_disabled_m || size != sizeof(T)) return ::operator new(size);
        ++total_alloc_cnt_m;
        ++curr_alloc_cnt_m;
        if (oa_stats_m) report();
        if (!oa_free_list_m) new_chunk();
        FREE_OBJ *obj = oa_free_list_m;
        oa_free_list_m = obj->next;
        return obj;
    }
    static void operator delete(void *p, size_t size) {
        if (!p) return;
        if (oa_disabled_m || size != sizeof(T)) {
            ::operator delete(p);
            return;
        }
        FREE_OBJ *obj = static_cast<FREE_OBJ *>(p);
        obj->next = oa_free_list_m;
        oa_free_list_m = obj;
        --curr_alloc_cnt_m;
        if (oa_stats_m) report();
    }

    static const char *pool_name() {
        if (!oa_name_m) oa_name_m = oalloc_demangle(typeid(T).name());
        return oa_name_m;
    }

    // Set before the first allocation of the class; objects already handed
    // out by the pool must not be deleted after it is disabled.
    static inline bool oa_disabled_m = false;
    static inline long total_alloc_cnt_m = 0;
    static inline long curr_alloc_cnt_m = 0;
    static inline bool oa_stats_m = false;
    static inline size_t mempool_sz_m = 0;

private:
    struct FREE_OBJ {
        FREE_OBJ *next;
    };
    struct CHUNK {
        CHUNK *next;
    };
    static constexpr size_t CHUNK_HEADER = alignof(std::max_align_t);
    static constexpr size_t SLOT = sizeof(T) < sizeof(FREE_OBJ) ? sizeof(FREE_OBJ) : sizeof(T);
    static constexpr size_t POOL_LIMIT = 0x1000000;

    static void report() {
        oalloc_report(pool_name(), curr_alloc_cnt_m, total_alloc_cnt_m,
                      static_cast<long>(mempool_sz_m));
    }
    static void new_chunk() {
        size_t count = mempool_sz_m >= POOL_LIMIT ? POOL_LIMIT / SLOT
                       : static_cast<size_t>(curr_alloc_cnt_m < 32 ? 32 : curr_alloc_cnt_m);
        if (count == 0) count = 1;
        // The chunk list keeps every chunk reachable; chunks are never freed.
        unsigned char *raw = static_cast<unsigned char *>(::operator new(CHUNK_HEADER + count * SLOT));
        CHUNK *chunk = reinterpret_cast<CHUNK *>(raw);
        chunk->next = oa_chunks_m;
        oa_chunks_m = chunk;
        unsigned char *base = raw + CHUNK_HEADER;
        for (size_t i = count; i-- > 0;) {
            FREE_OBJ *obj = reinterpret_cast<FREE_OBJ *>(base + i * SLOT);
            obj->next = oa_free_list_m;
            oa_free_list_m = obj;
        }
        mempool_sz_m += count * SLOT;
    }

    static inline FREE_OBJ *oa_free_list_m = nullptr;
    static inline CHUNK *oa_chunks_m = nullptr;
    static inline const char *oa_name_m = nullptr;
};

// ---- grow_table: append helper for arrays grown in steps of 100 ------------
void grow_table(void **table, unsigned *count, unsigned element_size);

template <class T>
void grow_table(T **table, unsigned *count) {
    static_assert(std::is_trivially_copyable_v<T>, "grow_table moves elements with realloc");
    void *p = *table;
    grow_table(&p, count, sizeof(T));
    *table = static_cast<T *>(p);
}

// ---- BITVEC -----------------------------------------------------------------
class BITVEC {
public:
    BITVEC() = default;
    explicit BITVEC(uint32_t bits) { bv_resize(bits); }
    BITVEC(const BITVEC &other) { *this = other; }
    BITVEC &operator=(const BITVEC &other);
    ~BITVEC();

    uint32_t bv_size() const { return nbits_m; }
    bool bv_test(uint32_t i) const {
        return i < nbits_m && (words_m[i / 32] >> (i % 32)) & 1u;
    }
    void bv_set(uint32_t i);              // grows to hold i
    void bv_reset(uint32_t i) { bv_clr(i, i); }
    void bv_set_all();
    bool bv_any() const;

    void bv_resize(uint32_t bits);
    void bv_clr(uint32_t from, uint32_t to);
    void bv_diff(const BITVEC &a, const BITVEC &b);
    void bv_merge(const BITVEC &other);          // |=, grown to other's size
    bool bv_intersects(const BITVEC &other) const;
    void bv_copy_seg(const BITVEC &other, uint32_t from, uint32_t to);
    void bv_print(FILE *stream = stderr) const;
    bool operator==(const BITVEC &other) const;

private:
    void mask_tail();

    uint32_t nbits_m = 0;
    uint32_t nwords_m = 0;
    uint32_t capacity_m = 0;
    uint32_t *words_m = nullptr;
};
