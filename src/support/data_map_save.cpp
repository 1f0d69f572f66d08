// DATA_MAP: zero runs, and writing the data to a file.
#include <algorithm>
#include <cstring>

#include "support/data_map.h"
#include "support/fhm.h"
#include "support/support_msg.h"

namespace {

uint64_t min64(uint64_t a, uint64_t b) { return a < b ? a : b; }

// Zeros go out a block at a time: a reservation of gigabytes must not cost a
// call per byte.
bool put_zeros(FILE *f, uint64_t n)
{
    static const unsigned char zeros[64 * 1024] = {};
    while (n) {
        const size_t k = static_cast<size_t>(min64(n, sizeof zeros));
        if (pfwrite(zeros, 1, k, f) != k) return false;
        n -= k;
    }
    return true;
}

}  // namespace

// ---- zero runs ---------------------------------------------------------------

void DATA_MAP::zeros_write(uint64_t n)
{
    if (n == 0) return;
    if (n < ZERO_RUN_MIN || cursor_m != size_m || !(flags_m & DM_IN_MEMORY)) {
        write(static_cast<const unsigned char *>(nullptr), static_cast<size_t>(n));
        return;
    }
    // The mempool must hold exactly the bytes outside the runs: zero slack
    // past the end goes, and a tail that is not held becomes a run itself.
    const uint64_t held = size_m - zero_run_total_m;
    if (mempool_m.size() > held) {
        mempool_m.resize(held);
    } else if (mempool_m.size() < held) {
        const uint64_t missing = held - mempool_m.size();
        n += missing;
        size_m -= missing;
    }
    if (!zero_runs_m.empty() && zero_runs_m.back().at + zero_runs_m.back().len == size_m)
        zero_runs_m.back().len += n;
    else
        zero_runs_m.push_back({size_m, n});
    zero_run_total_m += n;
    size_m += n;
    cursor_m = size_m;
    flags_m |= DM_ZERO_RUNS | DM_MODIFIED;
}

unsigned char *DATA_MAP::append_behind_runs(size_t n)
{
    const uint64_t at = size_m - zero_run_total_m;
    const uint64_t need = at + n;
    if (need > mempool_m.size()) {
        uint64_t len = std::max<uint64_t>({need, mempool_m.size() * 2, 64});
        if (need <= mempool_m.capacity()) len = std::min<uint64_t>(len, mempool_m.capacity());
        mempool_m.resize(len);
    }
    cursor_m += n;
    size_m = cursor_m;
    flags_m |= DM_MODIFIED;
    return mempool_m.data() + at;
}

void DATA_MAP::flatten() const
{
    std::vector<unsigned char> flat(size_m, 0);
    uint64_t from = 0;   // in the mempool
    uint64_t to = 0;     // in the data
    auto copy_up_to = [&](uint64_t end) {
        const uint64_t k = min64(end - to, mempool_m.size() > from ? mempool_m.size() - from : 0);
        if (k) std::memcpy(flat.data() + to, mempool_m.data() + from, k);
        from += end - to;
    };
    for (const ZERO_RUN &r : zero_runs_m) {
        copy_up_to(r.at);
        to = r.at + r.len;
    }
    copy_up_to(size_m);
    mempool_m.swap(flat);
    zero_runs_m.clear();
    zero_run_total_m = 0;
    flags_m &= static_cast<uint8_t>(~DM_ZERO_RUNS);
}

// ---- saving ------------------------------------------------------------------

int DATA_MAP::save_data(FHM_FILE *f, uint64_t n) const
{
    if (n == 0) return 0;
    load_buffer_into_mem();   // before taking the handle: loading may touch other files
    FILE *fp = f ? f->fp() : nullptr;
    if (!fp) {
        support_apperror("DATA_MAP::save_data: no file to write %llu bytes to",
                         static_cast<unsigned long long>(n));
        return -1;
    }
    return save_data(fp, n);
}

int DATA_MAP::save_data(FILE *f, uint64_t n) const
{
    if (n == 0) return 0;
    load_buffer_into_mem();
    if (flags_m & DM_ZERO_RUNS) return save_runs(f, n);
    uint64_t end = min64(size_m, mempool_m.size());
    uint64_t held = cursor_m < end ? min64(n, end - cursor_m) : 0;
    int result = 0;
    if (held && pfwrite(mempool_m.data() + cursor_m, 1, held, f) != held) result = -1;
    if (result == 0 && !put_zeros(f, n - held)) result = -1;
    cursor_m += n;
    return result;
}

// The bytes [cursor, cursor + n) of data with zero runs, without making them
// one piece: held bytes from the mempool, runs and the shortfall as zeros.
int DATA_MAP::save_runs(FILE *f, uint64_t n) const
{
    uint64_t pos = cursor_m;
    const uint64_t stop = cursor_m + n;
    uint64_t held_before = 0;   // mempool bytes before the held segment looked at
    bool ok = true;
    uint64_t seg_start = 0;   // data position of the held segment that starts here
    for (size_t i = 0; i <= zero_runs_m.size() && ok && pos < stop; ++i) {
        const bool last = i == zero_runs_m.size();
        const uint64_t seg_end = last ? size_m : zero_runs_m[i].at;
        if (pos < seg_end) {
            const uint64_t to = min64(seg_end, stop);
            const uint64_t src = held_before + (pos - seg_start);
            const uint64_t avail = mempool_m.size() > src ? mempool_m.size() - src : 0;
            const uint64_t k = min64(to - pos, avail);
            if (k && pfwrite(mempool_m.data() + src, 1, k, f) != k) ok = false;
            if (ok && !put_zeros(f, to - pos - k)) ok = false;
            pos = to;
        }
        held_before += seg_end - seg_start;
        if (last) break;
        const uint64_t run_end = zero_runs_m[i].at + zero_runs_m[i].len;
        if (pos < run_end && ok) {
            const uint64_t to = min64(run_end, stop);
            if (!put_zeros(f, to - pos)) ok = false;
            pos = to;
        }
        seg_start = run_end;
    }
    if (ok && pos < stop && !put_zeros(f, stop - pos)) ok = false;
    cursor_m = stop;
    return ok ? 0 : -1;
}
