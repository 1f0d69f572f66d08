#pragma once
// DATA_MAP: growable byte buffer with a cursor and a target byte order, held
// in memory or standing lazily for a range of a managed file. Long runs of
// zeros appended at the end are kept as runs, not bytes, until something
// needs the data in one piece.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <vector>

class FHM_FILE;

class DATA_MAP {
public:
    enum ENDIAN : uint8_t { ENDIAN_LITTLE = 1, ENDIAN_BIG = 2 };

    enum : uint8_t {
        DM_IN_MEMORY = 1,   // mempool holds the data
        DM_MODIFIED = 2,    // written since it was bound
        DM_BOUND = 4,       // data came from a set_data form
        DM_BIG_ENDIAN = 8,  // multi-byte fields are big-endian
        DM_ZERO_RUNS = 16,  // zero runs stand outside the mempool
    };

    // Zero runs shorter than this are written as bytes.
    static constexpr uint64_t ZERO_RUN_MIN = 4096;

    // Encoded bytes of one LEB128 number, as found at the cursor.
    struct LEB128_RAW {
        const unsigned char *bytes;  // null when nothing could be read
        unsigned length;
    };

    DATA_MAP();
    explicit DATA_MAP(size_t min);
    DATA_MAP(const DATA_MAP &other);
    DATA_MAP &operator=(const DATA_MAP &other);
    DATA_MAP(DATA_MAP &&other) noexcept;
    DATA_MAP &operator=(DATA_MAP &&other) noexcept;
    ~DATA_MAP();

    // ---- state -------------------------------------------------------
    uint64_t size() const { return size_m; }
    void set_size(uint64_t n);              // grows (zero bytes) or cuts the data
    bool empty() const { return size_m == 0; }
    uint64_t cursor() const { return cursor_m; }
    void set_cursor(uint64_t pos) const { cursor_m = pos; }
    void skip(int64_t delta) const { cursor_m += static_cast<uint64_t>(delta); }
    uint8_t flags() const { return flags_m; }
    bool in_memory() const { return flags_m & DM_IN_MEMORY; }
    bool is_modified() const { return flags_m & DM_MODIFIED; }
    bool is_bound() const { return flags_m & DM_BOUND; }
    void clear_modified() { flags_m &= static_cast<uint8_t>(~DM_MODIFIED); }
    FHM_FILE *file() const { return file_m; }
    uint64_t file_offset() const { return file_offset_m; }
    uint64_t file_size() const { return file_size_m; }

    ENDIAN get_endian() const { return (flags_m & DM_BIG_ENDIAN) ? ENDIAN_BIG : ENDIAN_LITTLE; }
    void set_endian(ENDIAN e);
    bool is_big_endian() const { return flags_m & DM_BIG_ENDIAN; }
    void set_big_endian(bool big) { set_endian(big ? ENDIAN_BIG : ENDIAN_LITTLE); }

    static ENDIAN host_endian();
    static const char *endian_name(ENDIAN e);  // "little", "big" or "unknown"

    // ---- binding and storage -----------------------------------------
    void set_data(FHM_FILE *f, uint64_t offset, uint64_t size);
    void set_data(const unsigned char *bytes, uint64_t size);
    void set_data(const DATA_MAP &src, uint64_t offset, uint64_t size);
    void clear();
    void reset() { clear(); }
    void load() const;
    void unload();
    unsigned char *dptr();                  // byte at the cursor, or null
    const unsigned char *dptr() const;
    unsigned char *data();                  // byte 0, or null when nothing is held
    const unsigned char *data() const;
    void reserve(size_t n) { mempool_m.reserve(n); }  // capacity only: nothing is written
    void set_min_bufsize(size_t n);
    void set_min_bufsize(size_t n) const;   // reports when the buffer is short

    int save_data(FHM_FILE *f, uint64_t n) const;  // 0 ok, -1 write failure
    int save_data(FILE *f, uint64_t n) const;

    // ---- writes at the cursor ----------------------------------------
    void write(const unsigned char *bytes, size_t n);
    void write(FHM_FILE *f, size_t n);      // n bytes from the file's position
    void write(const DATA_MAP &src, size_t n);

    void UINT_write(uint64_t value, unsigned n);
    void INT_write(int64_t value, unsigned n) { UINT_write(static_cast<uint64_t>(value), n); }
    void UINT8_write(uint8_t v) {
        unsigned char *p = prepare_write(1);
        *p = v;
    }
    void UINT16_write(uint16_t v) { UINT16_write(prepare_write(2), v, get_endian()); }
    void UINT32_write(uint32_t v) { UINT32_write(prepare_write(4), v, get_endian()); }
    void UINT64_write(uint64_t v) { UINT64_write(prepare_write(8), v, get_endian()); }
    void INT8_write(int8_t v) { UINT8_write(static_cast<uint8_t>(v)); }
    void INT16_write(int16_t v) { UINT16_write(static_cast<uint16_t>(v)); }
    void INT32_write(int32_t v) { UINT32_write(static_cast<uint32_t>(v)); }
    void INT64_write(int64_t v) { UINT64_write(static_cast<uint64_t>(v)); }

    unsigned ULEB128_write(unsigned value);  // returns the byte count
    unsigned SLEB128_write(int value);
    static unsigned ULEB128_size(unsigned value);
    static unsigned SLEB128_size(int value);

    void string_write(const char *s);        // with its NUL; null writes just a NUL
    // n zero bytes at the cursor; at the end of the data a long run is only
    // counted, and costs no memory until the data are needed in one piece.
    void zeros_write(uint64_t n);
    uint64_t zero_run_bytes() const { return zero_run_total_m; }

    // ---- reads at the cursor (past the end: 0, cursor still moves) ----
    uint64_t UINT_read(unsigned n) const;
    int64_t INT_read(unsigned n) const;
    uint8_t UINT8_read() const { return static_cast<uint8_t>(UINT_read(1)); }
    uint16_t UINT16_read() const { return static_cast<uint16_t>(UINT_read(2)); }
    uint32_t UINT32_read() const { return static_cast<uint32_t>(UINT_read(4)); }
    uint64_t UINT64_read() const { return UINT_read(8); }
    int8_t INT8_read() const { return static_cast<int8_t>(UINT_read(1)); }
    int16_t INT16_read() const { return static_cast<int16_t>(UINT_read(2)); }
    int32_t INT32_read() const { return static_cast<int32_t>(UINT_read(4)); }
    int64_t INT64_read() const { return static_cast<int64_t>(UINT_read(8)); }

    uint64_t ULEB128_read() const;
    int64_t SLEB128_read() const;
    LEB128_RAW ULEB128_read_raw() const;

    const char *string_read() const;          // null when no string is there
    void read(unsigned char *out, size_t n) const;
    void read_bypass(unsigned char *out, size_t n) const;

    // Bit field of `size` bits at bit `lsb` of a `container`-byte word at
    // the cursor, in the map's byte order; the cursor does not move.
    void pack(uint64_t value, unsigned container, unsigned lsb, unsigned size);
    uint64_t unpack(unsigned container, unsigned lsb, unsigned size) const;

    // ---- whole-map operations ----------------------------------------
    void remove_data(uint64_t offset, uint64_t n);
    void copy_data(uint64_t from, uint64_t to, uint64_t n);
    bool contains_all_zeroes() const;
    bool operator==(const DATA_MAP &other) const;
    bool operator!=(const DATA_MAP &other) const { return !(*this == other); }

    // ---- static forms on raw bytes -----------------------------------
    static uint16_t toggle_endian(uint16_t x);
    static uint32_t toggle_endian(uint32_t x);
    static uint64_t toggle_endian(uint64_t x);

    static void UINT_write(unsigned char *p, uint64_t v, ENDIAN e, unsigned n);
    static void UINT8_write(unsigned char *p, uint8_t v) { *p = v; }
    static void UINT16_write(unsigned char *p, uint16_t v, ENDIAN e) { UINT_write(p, v, e, 2); }
    static void UINT32_write(unsigned char *p, uint32_t v, ENDIAN e) { UINT_write(p, v, e, 4); }
    static void UINT64_write(unsigned char *p, uint64_t v, ENDIAN e) { UINT_write(p, v, e, 8); }
    static void INT_write(unsigned char *p, int64_t v, ENDIAN e, unsigned n) {
        UINT_write(p, static_cast<uint64_t>(v), e, n);
    }
    static void UINT_read(const unsigned char *p, uint64_t *v, ENDIAN e, unsigned n);
    static void INT_read(const unsigned char *p, int64_t *v, ENDIAN e, unsigned n);
    static uint8_t UINT8_read(const unsigned char *p) { return *p; }
    static uint16_t UINT16_read(const unsigned char *p, ENDIAN e);
    static uint32_t UINT32_read(const unsigned char *p, ENDIAN e);
    static uint64_t UINT64_read(const unsigned char *p, ENDIAN e);
    static unsigned ULEB128_write(unsigned char *p, unsigned v);   // byte count
    static unsigned SLEB128_write(unsigned char *p, int v);
    // `len` (may be null) receives the number of bytes consumed; `limit`
    // bounds the scan.
    static uint64_t ULEB128_read(const unsigned char *p, unsigned *len, size_t limit = SIZE_MAX);
    static int64_t SLEB128_read(const unsigned char *p, unsigned *len, size_t limit = SIZE_MAX);

private:
    // Capacity check and bookkeeping of a write of n bytes at the cursor;
    // returns where the bytes go.
    unsigned char *prepare_write(size_t n) {
        if ((flags_m & (DM_IN_MEMORY | DM_ZERO_RUNS)) == DM_IN_MEMORY && cursor_m + n <= mempool_m.size()) {
            unsigned char *p = mempool_m.data() + cursor_m;
            cursor_m += n;
            if (cursor_m > size_m) size_m = cursor_m;
            flags_m |= DM_MODIFIED;
            return p;
        }
        return prepare_write_slow(n);
    }
    unsigned char *prepare_write_slow(size_t n);
    unsigned char *append_behind_runs(size_t n);
    void load_buffer_into_mem() const;   // from the file; zero runs stay
    void flatten() const;                // zero runs become bytes
    int save_runs(FILE *f, uint64_t n) const;
    // Bytes [cursor, cursor+n) when they are all within the data, else null.
    const unsigned char *read_span(size_t n) const;

    // A run of zero bytes at `at` in the data, not held in the mempool; the
    // mempool then holds only the bytes between and after the runs.
    struct ZERO_RUN {
        uint64_t at;
        uint64_t len;
    };

    mutable std::vector<unsigned char> mempool_m;
    mutable std::vector<ZERO_RUN> zero_runs_m;
    mutable uint64_t zero_run_total_m = 0;
    uint64_t size_m = 0;
    mutable uint64_t cursor_m = 0;
    FHM_FILE *file_m = nullptr;
    uint64_t file_offset_m = 0;
    uint64_t file_size_m = 0;
    mutable uint8_t flags_m = DM_IN_MEMORY;
};

// Checked stdio wrappers used by the byte container and the engines; failures
// are reported as application errors.
size_t pfread(void *buf, size_t size, size_t count, FILE *f);
size_t pfwrite(const void *buf, size_t size, size_t count, FILE *f);
int pfseek(FILE *f, int64_t offset, int whence);
long pftell(FILE *f);
int64_t pftello(FILE *f);
