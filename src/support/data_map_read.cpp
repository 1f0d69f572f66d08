// DATA_MAP reads at the cursor, bit fields and whole-map operations.
#include <algorithm>
#include <cstring>

#include "support/data_map.h"
#include "support/fhm.h"
#include "support/support_msg.h"

namespace {
uint64_t min64(uint64_t a, uint64_t b) { return a < b ? a : b; }
}  // namespace

// ---- reads -------------------------------------------------------------------

const unsigned char *DATA_MAP::read_span(size_t n) const
{
    load();
    uint64_t end = min64(size_m, mempool_m.size());
    if (cursor_m > end || n > end - cursor_m) return nullptr;
    return mempool_m.data() + cursor_m;
}

uint64_t DATA_MAP::UINT_read(unsigned n) const
{
    const unsigned char *p = read_span(n);
    uint64_t v = 0;
    if (p && n) UINT_read(p, &v, get_endian(), n);
    cursor_m += n;
    return v;
}

int64_t DATA_MAP::INT_read(unsigned n) const
{
    const unsigned char *p = read_span(n);
    int64_t v = 0;
    if (p && n) INT_read(p, &v, get_endian(), n);
    cursor_m += n;
    return v;
}

uint64_t DATA_MAP::ULEB128_read() const
{
    load();
    uint64_t end = min64(size_m, mempool_m.size());
    if (cursor_m >= end) {
        ++cursor_m;
        return 0;
    }
    unsigned len = 0;
    uint64_t v = ULEB128_read(mempool_m.data() + cursor_m, &len, end - cursor_m);
    cursor_m += len ? len : end - cursor_m;
    return len ? v : 0;
}

int64_t DATA_MAP::SLEB128_read() const
{
    load();
    uint64_t end = min64(size_m, mempool_m.size());
    if (cursor_m >= end) {
        ++cursor_m;
        return 0;
    }
    unsigned len = 0;
    int64_t v = SLEB128_read(mempool_m.data() + cursor_m, &len, end - cursor_m);
    cursor_m += len ? len : end - cursor_m;
    return len ? v : 0;
}

DATA_MAP::LEB128_RAW DATA_MAP::ULEB128_read_raw() const
{
    load();
    uint64_t end = min64(size_m, mempool_m.size());
    if (cursor_m >= end) {
        ++cursor_m;
        return {nullptr, 0};
    }
    unsigned len = 0;
    const unsigned char *p = mempool_m.data() + cursor_m;
    ULEB128_read(p, &len, end - cursor_m);
    cursor_m += len ? len : end - cursor_m;
    return len ? LEB128_RAW{p, len} : LEB128_RAW{nullptr, 0};
}

const char *DATA_MAP::string_read() const
{
    load();
    uint64_t end = min64(size_m, mempool_m.size());
    if (cursor_m >= end) {
        ++cursor_m;
        return nullptr;
    }
    const unsigned char *p = mempool_m.data() + cursor_m;
    const void *nul = std::memchr(p, 0, end - cursor_m);
    if (!nul) {
        cursor_m = end;
        return nullptr;
    }
    cursor_m += static_cast<const unsigned char *>(nul) - p + 1;
    return reinterpret_cast<const char *>(p);
}

void DATA_MAP::read(unsigned char *out, size_t n) const
{
    const unsigned char *p = read_span(n);
    if (p)
        std::memcpy(out, p, n);
    else if (n)
        std::memset(out, 0, n);
    cursor_m += n;
}

void DATA_MAP::read_bypass(unsigned char *out, size_t n) const
{
    if ((flags_m & DM_IN_MEMORY) || !file_m) {
        read(out, n);
        return;
    }
    if (n == 0) return;
    std::memset(out, 0, n);
    bool inside = cursor_m <= size_m && n <= size_m - cursor_m;
    uint64_t from_file = inside && cursor_m < file_size_m ? min64(n, file_size_m - cursor_m) : 0;
    if (from_file) {
        FILE *f = file_m->fp();
        if (!f) {
            support_apperror("DATA_MAP: cannot reopen \"%s\" to read", file_m->name());
        } else {
            int64_t pos = pftello(f);
            if (pfseek(f, static_cast<int64_t>(file_offset_m + cursor_m), SEEK_SET) == 0)
                pfread(out, 1, from_file, f);
            if (pos >= 0) pfseek(f, pos, SEEK_SET);
        }
    }
    cursor_m += n;
}

// ---- bit fields ------------------------------------------------------------------

namespace {
uint64_t field_mask(unsigned size) { return size >= 64 ? ~uint64_t{0} : (uint64_t{1} << size) - 1; }
}  // namespace

void DATA_MAP::pack(uint64_t value, unsigned container, unsigned lsb, unsigned size)
{
    if (size == 0) return;
    if (container > 8) {
        support_apperror("DATA_MAP::unpack:  container sizes larger than 8 bytes are not supported");
        return;
    }
    if (lsb + size > container * 8) {
        support_apperror("DATA_MAP::unpack:  field size + lsb offset is greater than container size");
        return;
    }
    uint64_t at = cursor_m;
    uint64_t mask = field_mask(size);
    uint64_t word = UINT_read(container);
    word = (word & ~(mask << lsb)) | ((value & mask) << lsb);
    cursor_m = at;
    UINT_write(word, container);
    cursor_m = at;
}

uint64_t DATA_MAP::unpack(unsigned container, unsigned lsb, unsigned size) const
{
    if (size == 0) return 0;
    if (container > 8) {
        support_apperror("unpack does not support container sizes larger than 8 bytes; returning 0");
        return 0;
    }
    if (lsb + size > container * 8) {
        support_apperror(
            "DATA_MAP::unpack:  field size + lsb offset is greater than container size; returning 0");
        return 0;
    }
    uint64_t at = cursor_m;
    uint64_t word = UINT_read(container);
    cursor_m = at;
    return (word >> lsb) & field_mask(size);
}

// ---- whole-map operations ----------------------------------------------------------

void DATA_MAP::remove_data(uint64_t offset, uint64_t n)
{
    load();
    if (offset >= size_m || n == 0) return;
    n = min64(n, size_m - offset);
    uint64_t end = min64(size_m, mempool_m.size());
    if (offset + n < end)
        std::memmove(mempool_m.data() + offset, mempool_m.data() + offset + n, end - offset - n);
    // Bytes past the new end must read as zero if the map grows again.
    uint64_t zero_from = end > n ? std::max(end - n, offset) : offset;
    if (zero_from < end) std::memset(mempool_m.data() + zero_from, 0, end - zero_from);
    size_m -= n;
    if (cursor_m >= offset + n)
        cursor_m -= n;
    else if (cursor_m > offset)
        cursor_m = offset;
    flags_m |= DM_MODIFIED;
}

void DATA_MAP::copy_data(uint64_t from, uint64_t to, uint64_t n)
{
    if (n == 0) return;
    load();
    std::vector<unsigned char> bytes(n, 0);
    uint64_t end = min64(size_m, mempool_m.size());
    if (from < end) std::memcpy(bytes.data(), mempool_m.data() + from, min64(n, end - from));
    uint64_t at = cursor_m;
    cursor_m = to;
    write(bytes.data(), n);
    cursor_m = at;
}

bool DATA_MAP::contains_all_zeroes() const
{
    load();
    uint64_t end = min64(size_m, mempool_m.size());
    return std::all_of(mempool_m.begin(), mempool_m.begin() + static_cast<ptrdiff_t>(end),
                       [](unsigned char c) { return c == 0; });
}

bool DATA_MAP::operator==(const DATA_MAP &other) const
{
    if (size_m != other.size_m) return false;
    load();
    other.load();
    // Bytes that are within the size but not held read as zero.
    uint64_t a = min64(size_m, mempool_m.size());
    uint64_t b = min64(other.size_m, other.mempool_m.size());
    uint64_t common = min64(a, b);
    if (common && std::memcmp(mempool_m.data(), other.mempool_m.data(), common) != 0) return false;
    const auto &longer = a > b ? mempool_m : other.mempool_m;
    return std::all_of(longer.begin() + static_cast<ptrdiff_t>(common),
                       longer.begin() + static_cast<ptrdiff_t>(std::max(a, b)),
                       [](unsigned char c) { return c == 0; });
}
