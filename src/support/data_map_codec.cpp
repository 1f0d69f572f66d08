// Byte order and LEB128 on raw bytes.
#include "support/data_map.h"

// ---- static forms --------------------------------------------------------------------

uint16_t DATA_MAP::toggle_endian(uint16_t x) { return __builtin_bswap16(x); }
uint32_t DATA_MAP::toggle_endian(uint32_t x) { return __builtin_bswap32(x); }
uint64_t DATA_MAP::toggle_endian(uint64_t x) { return __builtin_bswap64(x); }

void DATA_MAP::UINT_write(unsigned char *p, uint64_t v, ENDIAN e, unsigned n)
{
    // Bytes beyond the eighth are zero: the value has only 64 bits.
    for (unsigned i = 0; i < n; ++i) {
        unsigned char byte = i < 8 ? static_cast<unsigned char>(v >> (8 * i)) : 0;
        p[e == ENDIAN_BIG ? n - 1 - i : i] = byte;
    }
}

void DATA_MAP::UINT_read(const unsigned char *p, uint64_t *v, ENDIAN e, unsigned n)
{
    uint64_t r = 0;
    for (unsigned i = 0; i < n && i < 8; ++i)
        r |= uint64_t{p[e == ENDIAN_BIG ? n - 1 - i : i]} << (8 * i);
    *v = r;
}

void DATA_MAP::INT_read(const unsigned char *p, int64_t *v, ENDIAN e, unsigned n)
{
    uint64_t r = 0;
    UINT_read(p, &r, e, n);
    if (n > 0 && n < 8 && (r >> (8 * n - 1)) & 1) r |= ~uint64_t{0} << (8 * n);
    *v = static_cast<int64_t>(r);
}

uint16_t DATA_MAP::UINT16_read(const unsigned char *p, ENDIAN e)
{
    uint64_t v;
    UINT_read(p, &v, e, 2);
    return static_cast<uint16_t>(v);
}

uint32_t DATA_MAP::UINT32_read(const unsigned char *p, ENDIAN e)
{
    uint64_t v;
    UINT_read(p, &v, e, 4);
    return static_cast<uint32_t>(v);
}

uint64_t DATA_MAP::UINT64_read(const unsigned char *p, ENDIAN e)
{
    uint64_t v;
    UINT_read(p, &v, e, 8);
    return v;
}

unsigned DATA_MAP::ULEB128_write(unsigned char *p, unsigned v)
{
    unsigned len = 0;
    do {
        unsigned char byte = v & 0x7f;
        v >>= 7;
        if (v) byte |= 0x80;
        p[len++] = byte;
    } while (v);
    return len;
}

unsigned DATA_MAP::SLEB128_write(unsigned char *p, int v)
{
    unsigned len = 0;
    for (;;) {
        unsigned char byte = static_cast<unsigned char>(v & 0x7f);
        v >>= 7;   // arithmetic shift keeps the sign
        bool done = (v == 0 && !(byte & 0x40)) || (v == -1 && (byte & 0x40));
        if (!done) byte |= 0x80;
        p[len++] = byte;
        if (done) return len;
    }
}

uint64_t DATA_MAP::ULEB128_read(const unsigned char *p, unsigned *len, size_t limit)
{
    uint64_t v = 0;
    unsigned shift = 0;
    for (size_t i = 0; i < limit; ++i) {
        unsigned char byte = p[i];
        if (shift < 64) v |= uint64_t{byte & 0x7fu} << shift;
        shift += 7;
        if (!(byte & 0x80)) {
            if (len) *len = static_cast<unsigned>(i + 1);
            return v;
        }
    }
    if (len) *len = 0;   // no final byte within the limit
    return 0;
}

int64_t DATA_MAP::SLEB128_read(const unsigned char *p, unsigned *len, size_t limit)
{
    uint64_t v = 0;
    unsigned shift = 0;
    for (size_t i = 0; i < limit; ++i) {
        unsigned char byte = p[i];
        if (shift < 64) v |= uint64_t{byte & 0x7fu} << shift;
        shift += 7;
        if (!(byte & 0x80)) {
            if (shift < 64 && (byte & 0x40)) v |= ~uint64_t{0} << shift;
            if (len) *len = static_cast<unsigned>(i + 1);
            return static_cast<int64_t>(v);
        }
    }
    if (len) *len = 0;
    return 0;
}
