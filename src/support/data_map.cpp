#include "support/data_map.h"

#include <algorithm>
#include <bit>
#include <cerrno>
#include <cstring>

#include "support/fhm.h"
#include "support/support_msg.h"

namespace {

uint64_t min64(uint64_t a, uint64_t b) { return a < b ? a : b; }

void release(std::vector<unsigned char> &v) { std::vector<unsigned char>().swap(v); }

}  // namespace

// ---- construction ------------------------------------------------------------

DATA_MAP::DATA_MAP() = default;

DATA_MAP::DATA_MAP(size_t min) { mempool_m.reserve(min); }

DATA_MAP::DATA_MAP(const DATA_MAP &other) { *this = other; }

DATA_MAP &DATA_MAP::operator=(const DATA_MAP &other)
{
    if (this == &other) return *this;
    size_m = other.size_m;
    cursor_m = other.cursor_m;
    file_m = other.file_m;
    file_offset_m = other.file_offset_m;
    file_size_m = other.file_size_m;
    if (other.file_m && !other.is_modified()) {
        // The file stays the source: take the binding, not the bytes.
        release(mempool_m);
        zero_runs_m.clear();
        zero_run_total_m = 0;
        flags_m = other.flags_m & static_cast<uint8_t>(~DM_IN_MEMORY);
        return *this;
    }
    flags_m = other.flags_m;
    zero_runs_m = other.zero_runs_m;
    zero_run_total_m = other.zero_run_total_m;
    // With zero runs the mempool holds exactly the bytes between them.
    uint64_t held = other.zero_runs_m.empty() ? min64(other.size_m, other.mempool_m.size())
                                              : other.mempool_m.size();
    mempool_m.assign(other.mempool_m.begin(), other.mempool_m.begin() + static_cast<ptrdiff_t>(held));
    return *this;
}

DATA_MAP::DATA_MAP(DATA_MAP &&other) noexcept { *this = std::move(other); }

DATA_MAP &DATA_MAP::operator=(DATA_MAP &&other) noexcept
{
    if (this == &other) return *this;
    mempool_m = std::move(other.mempool_m);
    zero_runs_m = std::move(other.zero_runs_m);
    zero_run_total_m = other.zero_run_total_m;
    size_m = other.size_m;
    cursor_m = other.cursor_m;
    file_m = other.file_m;
    file_offset_m = other.file_offset_m;
    file_size_m = other.file_size_m;
    flags_m = other.flags_m;
    other.clear();
    return *this;
}

DATA_MAP::~DATA_MAP() = default;

// ---- state -----------------------------------------------------------------

void DATA_MAP::set_endian(ENDIAN e)
{
    if (e == ENDIAN_BIG)
        flags_m |= DM_BIG_ENDIAN;
    else
        flags_m &= static_cast<uint8_t>(~DM_BIG_ENDIAN);
}

DATA_MAP::ENDIAN DATA_MAP::host_endian()
{
    return std::endian::native == std::endian::big ? ENDIAN_BIG : ENDIAN_LITTLE;
}

const char *DATA_MAP::endian_name(ENDIAN e)
{
    switch (e) {
    case ENDIAN_LITTLE: return "little";
    case ENDIAN_BIG: return "big";
    }
    return "unknown";
}

void DATA_MAP::set_size(uint64_t n)
{
    load();
    if (n > mempool_m.size()) mempool_m.resize(n);
    if (n < size_m) {
        uint64_t end = min64(size_m, mempool_m.size());
        std::fill(mempool_m.begin() + static_cast<ptrdiff_t>(n),
                  mempool_m.begin() + static_cast<ptrdiff_t>(end), 0);
    }
    if (n != size_m) flags_m |= DM_MODIFIED;
    size_m = n;
}

// ---- binding and storage -------------------------------------------------------

void DATA_MAP::set_data(FHM_FILE *f, uint64_t offset, uint64_t size)
{
    release(mempool_m);
    zero_runs_m.clear();
    zero_run_total_m = 0;
    file_m = f;
    file_offset_m = offset;
    size_m = file_size_m = size;
    cursor_m = 0;
    flags_m = DM_BOUND | (flags_m & DM_BIG_ENDIAN);
}

void DATA_MAP::set_data(const unsigned char *bytes, uint64_t size)
{
    if (bytes)
        mempool_m.assign(bytes, bytes + size);
    else
        mempool_m.assign(size, 0);
    zero_runs_m.clear();
    zero_run_total_m = 0;
    size_m = size;
    cursor_m = 0;
    file_m = nullptr;
    file_offset_m = file_size_m = 0;
    flags_m = DM_IN_MEMORY | DM_BOUND | (flags_m & DM_BIG_ENDIAN);
}

void DATA_MAP::set_data(const DATA_MAP &src, uint64_t offset, uint64_t size)
{
    src.load();
    uint64_t avail = src.size_m > offset ? src.size_m - offset : 0;
    size = min64(size, avail);
    std::vector<unsigned char> bytes(size, 0);
    uint64_t held = src.mempool_m.size() > offset ? min64(size, src.mempool_m.size() - offset) : 0;
    if (held) std::memcpy(bytes.data(), src.mempool_m.data() + offset, held);
    set_data(bytes.data(), size);
}

void DATA_MAP::clear()
{
    release(mempool_m);
    zero_runs_m.clear();
    zero_run_total_m = 0;
    size_m = cursor_m = 0;
    file_m = nullptr;
    file_offset_m = file_size_m = 0;
    flags_m = DM_IN_MEMORY | (flags_m & DM_BIG_ENDIAN);
}

void DATA_MAP::load() const
{
    load_buffer_into_mem();
    if (flags_m & DM_ZERO_RUNS) flatten();
}

void DATA_MAP::load_buffer_into_mem() const
{
    if (flags_m & DM_IN_MEMORY) return;
    uint64_t count = min64(size_m, file_size_m);
    if (count == 0 || !file_m) {
        flags_m |= DM_IN_MEMORY;
        return;
    }
    mempool_m.assign(count, 0);
    flags_m |= DM_IN_MEMORY;
    FILE *f = file_m->fp();
    if (!f) {
        support_apperror("DATA_MAP: cannot reopen \"%s\" to load %llu bytes", file_m->name(),
                         static_cast<unsigned long long>(count));
        return;
    }
    // The client may be reading the same file: leave its position alone.
    int64_t pos = pftello(f);
    if (pfseek(f, static_cast<int64_t>(file_offset_m), SEEK_SET) == 0)
        pfread(mempool_m.data(), 1, count, f);
    if (pos >= 0) pfseek(f, pos, SEEK_SET);
}

void DATA_MAP::unload()
{
    // Without a file the bytes exist nowhere else, so they stay.
    if (!file_m) return;
    release(mempool_m);
    zero_runs_m.clear();
    zero_run_total_m = 0;
    flags_m &= static_cast<uint8_t>(~(DM_IN_MEMORY | DM_MODIFIED | DM_ZERO_RUNS));
}

unsigned char *DATA_MAP::dptr()
{
    load();
    if (size_m == 0 || cursor_m >= mempool_m.size()) return nullptr;
    return mempool_m.data() + cursor_m;
}

const unsigned char *DATA_MAP::dptr() const
{
    load();
    if (size_m == 0 || cursor_m >= mempool_m.size()) return nullptr;
    return mempool_m.data() + cursor_m;
}

unsigned char *DATA_MAP::data()
{
    load();
    return mempool_m.empty() ? nullptr : mempool_m.data();
}

const unsigned char *DATA_MAP::data() const
{
    load();
    return mempool_m.empty() ? nullptr : mempool_m.data();
}

void DATA_MAP::set_min_bufsize(size_t n)
{
    load();
    if (mempool_m.size() < n) mempool_m.resize(n);
}

void DATA_MAP::set_min_bufsize(size_t n) const
{
    load();
    if (mempool_m.size() < n)
        support_apperror("buffer of size %zu not big enough on const DATA_MAP %p of size %zu", n,
                         static_cast<const void *>(this), mempool_m.size());
}

// ---- writes ----------------------------------------------------------------

unsigned char *DATA_MAP::prepare_write_slow(size_t n)
{
    if ((flags_m & (DM_IN_MEMORY | DM_ZERO_RUNS)) == (DM_IN_MEMORY | DM_ZERO_RUNS) && cursor_m == size_m)
        return append_behind_runs(n);
    load();
    uint64_t need = cursor_m + n;
    if (need > mempool_m.size()) {
        // Amortised doubling: sections are written a few bytes at a time.
        // Within a reserved capacity, doubling past it would copy for nothing.
        uint64_t len = std::max<uint64_t>({need, mempool_m.size() * 2, 64});
        if (need <= mempool_m.capacity()) len = std::min<uint64_t>(len, mempool_m.capacity());
        mempool_m.resize(len);
    }
    unsigned char *p = mempool_m.data() + cursor_m;
    cursor_m = need;
    if (cursor_m > size_m) size_m = cursor_m;
    flags_m |= DM_MODIFIED;
    return p;
}

void DATA_MAP::write(const unsigned char *bytes, size_t n)
{
    if (n == 0) return;
    unsigned char *p = prepare_write(n);
    if (bytes)
        std::memcpy(p, bytes, n);
    else
        std::memset(p, 0, n);
}

void DATA_MAP::write(FHM_FILE *f, size_t n)
{
    if (n == 0) return;
    unsigned char *p = prepare_write(n);
    FILE *fp = f ? f->fp() : nullptr;
    size_t got = 0;
    if (!fp)
        support_apperror("DATA_MAP::write: no file to read %zu bytes from", n);
    else
        got = pfread(p, 1, n, fp);
    if (got < n) std::memset(p + got, 0, n - got);
}

void DATA_MAP::write(const DATA_MAP &src, size_t n)
{
    src.load();
    uint64_t avail = src.cursor_m < src.size_m ? src.size_m - src.cursor_m : 0;
    size_t k = static_cast<size_t>(min64(n, avail));
    if (k == 0) return;
    std::vector<unsigned char> bytes(k, 0);
    uint64_t held = src.mempool_m.size() > src.cursor_m
                        ? min64(k, src.mempool_m.size() - src.cursor_m) : 0;
    if (held) std::memcpy(bytes.data(), src.mempool_m.data() + src.cursor_m, held);
    src.cursor_m += k;
    write(bytes.data(), k);
}

void DATA_MAP::UINT_write(uint64_t value, unsigned n)
{
    if (n == 0) return;
    UINT_write(prepare_write(n), value, get_endian(), n);
}

unsigned DATA_MAP::ULEB128_write(unsigned value)
{
    unsigned char buf[8];
    unsigned len = ULEB128_write(buf, value);
    write(buf, len);
    return len;
}

unsigned DATA_MAP::SLEB128_write(int value)
{
    unsigned char buf[8];
    unsigned len = SLEB128_write(buf, value);
    write(buf, len);
    return len;
}

unsigned DATA_MAP::ULEB128_size(unsigned value)
{
    unsigned char buf[8];
    return ULEB128_write(buf, value);
}

unsigned DATA_MAP::SLEB128_size(int value)
{
    unsigned char buf[8];
    return SLEB128_write(buf, value);
}

void DATA_MAP::string_write(const char *s)
{
    if (!s) s = "";
    write(reinterpret_cast<const unsigned char *>(s), std::strlen(s) + 1);
}
