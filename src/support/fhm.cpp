#include "support/fhm.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <vector>

#include "support/memory.h"

// ---- FHM_FILE ------------------------------------------------------------------

FHM_FILE::FHM_FILE(FILE_HANDLE_MANAGER *mgr, const char *name, const char *mode)
    : manager_m(mgr), name_m(safestrdup(name)), mode_m(safestrdup(mode))
{
}

FHM_FILE::~FHM_FILE()
{
    free(name_m);
    free(mode_m);
}

FILE *FHM_FILE::fp() { return manager_m->fp(this); }

int FHM_FILE::evict() { return manager_m->evict(this); }

// ---- FILE_HANDLE_MANAGER -------------------------------------------------------

FILE_HANDLE_MANAGER &FILE_HANDLE_MANAGER::FHM()
{
    // Never destroyed: files may be closed from anywhere up to exit.
    static FILE_HANDLE_MANAGER *manager = new FILE_HANDLE_MANAGER;
    return *manager;
}

FILE_HANDLE_MANAGER::FILE_HANDLE_MANAGER()
    : managed_m(static_cast<FHM_FILE **>(safecalloc(1024, sizeof(FHM_FILE *))))
{
    auto standard = [this](const char *name, const char *mode, FILE *stream) {
        FHM_FILE *f = new FHM_FILE(this, name, mode);
        f->file_m = stream;
        f->persistent_m = true;
        return f;
    };
    stdin_m = standard("(stdin)", "r", stdin);
    stdout_m = standard("(stdout)", "w", stdout);
    stderr_m = standard("(stderr)", "w", stderr);
}

const char *FILE_HANDLE_MANAGER::detect_reopen_mode(const char *mode)
{
    if (!mode || !*mode) return "r";
    bool binary = false, plus = false;
    for (const char *p = mode + 1; *p; ++p) {
        if (*p == 'b') binary = true;
        if (*p == '+') plus = true;
    }
    switch (mode[0]) {
    case 'w':   // coming back must not truncate what was written
        return binary ? "r+b" : "r+";
    case 'a':
        if (plus) return binary ? "a+b" : "a+";
        return binary ? "ab" : "a";
    default:
        if (plus) return binary ? "r+b" : "r+";
        return binary ? "rb" : "r";
    }
}

FHM_FILE *FILE_HANDLE_MANAGER::open(const char *name, const char *mode)
{
    if (!name || !mode) {
        errno = EINVAL;
        return nullptr;
    }
    if (managed_next_m == managed_capacity_m) {
        if (has_gaps_m) defragment_file_handles();
        if (managed_next_m == managed_capacity_m) grow_file_handles();
    }
    FHM_FILE *f = new FHM_FILE(this, name, mode);
    if (!open_FILE(f)) {
        int saved = errno;
        delete f;
        errno = saved;
        return nullptr;
    }
    f->managed_index_m = managed_next_m;
    managed_m[managed_next_m++] = f;
    return f;
}

int FILE_HANDLE_MANAGER::find_free_slot()
{
    for (int i = 0; i < open_capacity_m; ++i) {
        int slot = (next_slot_m + i) % open_capacity_m;
        if (!open_m[slot]) {
            next_slot_m = (slot + 1) % open_capacity_m;
            return slot;
        }
    }
    return -1;
}

// A free slot, closing the least recently used handles until one appears;
// -1 with errno EMFILE when nothing more can be closed.
int FILE_HANDLE_MANAGER::claim_slot()
{
    int slot = find_free_slot();
    while (slot < 0) {
        if (evict_file_handle() < 0) {
            errno = EMFILE;
            return -1;
        }
        slot = find_free_slot();
    }
    return slot;
}

FILE *FILE_HANDLE_MANAGER::open_FILE(FHM_FILE *f)
{
    const int slot = claim_slot();
    if (slot < 0) return nullptr;
    FILE *fp;
    for (;;) {
        fp = fopen64(f->name_m, f->mode_m);
        if (fp) break;
        // The system ran out before we did: make room and try again.
        if (errno == EMFILE && evict_file_handle() >= 0) continue;
        return nullptr;
    }
    // Sources are read through whole: fewer, larger reads.
    setvbuf(fp, nullptr, _IOFBF, 1 << 16);
    f->file_m = fp;
    f->open_slot_m = slot;
    open_m[slot] = f;
    mark_access(f);
    const char *reopen_mode = detect_reopen_mode(f->mode_m);
    if (std::strcmp(reopen_mode, f->mode_m) != 0) {
        free(f->mode_m);
        f->mode_m = safestrdup(reopen_mode);
    }
    return fp;
}

int FILE_HANDLE_MANAGER::evict_file_handle()
{
    FHM_FILE *victim = nullptr;
    for (FHM_FILE *f : open_m)
        if (f && !f->persistent_m && (!victim || f->last_access_m < victim->last_access_m))
            victim = f;
    if (!victim) return -1;
    evict(victim);
    return 0;
}

int FILE_HANDLE_MANAGER::evict(FHM_FILE *f)
{
    if (!f || !f->file_m || f->persistent_m || is_standard(f)) return -1;
    f->saved_offset_m = ftello(f->file_m);
    fgetpos(f->file_m, &f->saved_pos_m);
    int result = fclose(f->file_m);
    f->file_m = nullptr;
    if (f->open_slot_m >= 0) open_m[f->open_slot_m] = nullptr;
    f->open_slot_m = -1;
    return result;
}

FILE *FILE_HANDLE_MANAGER::fp(FHM_FILE *f)
{
    if (!f) return nullptr;
    if (!f->file_m && !reopen(f)) return nullptr;
    mark_access(f);
    return f->file_m;
}

FILE *FILE_HANDLE_MANAGER::reopen(FHM_FILE *f)
{
    FILE *fp = open_FILE(f);
    if (!fp) return nullptr;
    // A file that cannot go back to where it stood is as good as lost: reading
    // on from elsewhere would be silently wrong.
    if (fsetpos(fp, &f->saved_pos_m) != 0 || fseeko(fp, f->saved_offset_m, SEEK_SET) != 0) {
        const int saved = errno;
        fclose(fp);
        f->file_m = nullptr;
        open_m[f->open_slot_m] = nullptr;
        f->open_slot_m = -1;
        errno = saved;
        return nullptr;
    }
    ++f->reopen_count_m;
    return fp;
}

FHM_FILE *FILE_HANDLE_MANAGER::adopt(FILE *stream, const char *name, const char *mode)
{
    if (!stream || !name || !mode) {
        errno = EINVAL;
        return nullptr;
    }
    const int slot = claim_slot();
    if (slot < 0) return nullptr;
    if (managed_next_m == managed_capacity_m) {
        if (has_gaps_m) defragment_file_handles();
        if (managed_next_m == managed_capacity_m) grow_file_handles();
    }
    FHM_FILE *f = new FHM_FILE(this, name, mode);
    f->file_m = stream;
    f->persistent_m = true;  // there is no name to come back by
    f->open_slot_m = slot;
    open_m[slot] = f;
    mark_access(f);
    f->managed_index_m = managed_next_m;
    managed_m[managed_next_m++] = f;
    return f;
}

int FILE_HANDLE_MANAGER::close(FHM_FILE *f)
{
    if (!f) return -1;
    if (is_standard(f)) return 0;
    int result = 0;
    if (f->file_m) {
        result = fclose(f->file_m);
        if (f->open_slot_m >= 0) open_m[f->open_slot_m] = nullptr;
    }
    if (f->managed_index_m >= 0 && f->managed_index_m < managed_next_m &&
        managed_m[f->managed_index_m] == f) {
        managed_m[f->managed_index_m] = nullptr;
        has_gaps_m = true;
    }
    delete f;
    return result;
}

void FILE_HANDLE_MANAGER::defragment_file_handles()
{
    int32_t live = 0;
    for (int32_t i = 0; i < managed_next_m; ++i) {
        if (!managed_m[i]) continue;
        managed_m[live] = managed_m[i];
        managed_m[live]->managed_index_m = live;
        ++live;
    }
    std::fill(managed_m + live, managed_m + managed_next_m, nullptr);
    managed_next_m = live;
    has_gaps_m = false;
}

void FILE_HANDLE_MANAGER::grow_file_handles()
{
    int32_t cap = managed_capacity_m * 2;
    managed_m = static_cast<FHM_FILE **>(saferealloc(managed_m, sizeof(FHM_FILE *) * cap));
    std::fill(managed_m + managed_capacity_m, managed_m + cap, nullptr);
    managed_capacity_m = cap;
}

int32_t FILE_HANDLE_MANAGER::managed_count() const
{
    return static_cast<int32_t>(std::count_if(managed_m, managed_m + managed_next_m,
                                              [](FHM_FILE *f) { return f != nullptr; }));
}

int32_t FILE_HANDLE_MANAGER::open_count() const
{
    return static_cast<int32_t>(
        std::count_if(std::begin(open_m), std::end(open_m), [](FHM_FILE *f) { return f != nullptr; }));
}

void FILE_HANDLE_MANAGER::stats(FILE *stream) const
{
    std::vector<FHM_FILE *> open_files, managed;
    for (FHM_FILE *f : open_m)
        if (f) open_files.push_back(f);
    for (int32_t i = 0; i < managed_next_m; ++i)
        if (managed_m[i]) managed.push_back(managed_m[i]);
    auto compar_access = [](const FHM_FILE *a, const FHM_FILE *b) {
        return a->last_access_m > b->last_access_m;
    };
    auto compar_open = [](const FHM_FILE *a, const FHM_FILE *b) {
        return a->reopen_count_m > b->reopen_count_m;
    };
    std::sort(open_files.begin(), open_files.end(), compar_access);
    std::stable_sort(managed.begin(), managed.end(), compar_open);

    fprintf(stream, " File Manager Statistics\n");
    fprintf(stream, " -----------------------\n");
    fprintf(stream, "    # Managed Files    %d\n", static_cast<int>(managed.size()));
    fprintf(stream, "    # Open Files:      %d\n", static_cast<int>(open_files.size()));
    fprintf(stream, "    Max # Open Files:  %d\n", open_capacity_m);
    fprintf(stream, " Open Files (most recently accessed first)\n");
    for (const FHM_FILE *f : open_files) fprintf(stream, "    %s\n", f->name_m);
    fprintf(stream, " File Access Statistics (most thrashed first)\n");
    for (const FHM_FILE *f : managed)
        fprintf(stream, "    %s was reopened %ld times\n", f->name_m, static_cast<long>(f->reopen_count_m));
}

// ---- free functions ------------------------------------------------------------

FHM_FILE *fhm_open(const char *name, const char *mode)
{
    return FILE_HANDLE_MANAGER::FHM().open(name, mode);
}

FHM_FILE *fhm_adopt(FILE *stream, const char *name, const char *mode)
{
    return FILE_HANDLE_MANAGER::FHM().adopt(stream, name, mode);
}

int fhm_close(FHM_FILE *f) { return FILE_HANDLE_MANAGER::FHM().close(f); }

FHM_FILE *fhm_stdin() { return FILE_HANDLE_MANAGER::FHM().std_in(); }
FHM_FILE *fhm_stdout() { return FILE_HANDLE_MANAGER::FHM().std_out(); }
FHM_FILE *fhm_stderr() { return FILE_HANDLE_MANAGER::FHM().std_err(); }

void fhm_stats(FILE *stream) { FILE_HANDLE_MANAGER::FHM().stats(stream); }
