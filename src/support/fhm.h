#pragma once
// Logical files over a small fixed number of system handles, and file name
// arithmetic with '/' as the only separator.
#include <cstdint>
#include <cstdio>

class FILE_HANDLE_MANAGER;

class FHM_FILE {
public:
    FHM_FILE(const FHM_FILE &) = delete;
    FHM_FILE &operator=(const FHM_FILE &) = delete;

    // The handle to use now; reopens an evicted file at its saved position.
    // Null when the file cannot be reopened. Don't keep it across another
    // manager call.
    FILE *fp();
    const char *name() const { return name_m; }
    const char *mode() const { return mode_m; }   // the reopen mode after the first open
    bool is_open() const { return file_m != nullptr; }
    bool is_persistent() const { return persistent_m; }
    void set_persistent(bool p) { persistent_m = p; }
    int evict();                                  // fclose's result; -1 when not evictable
    int64_t reopen_count() const { return reopen_count_m; }
    int64_t last_access() const { return last_access_m; }

private:
    friend class FILE_HANDLE_MANAGER;
    FHM_FILE(FILE_HANDLE_MANAGER *mgr, const char *name, const char *mode);
    ~FHM_FILE();

    FILE_HANDLE_MANAGER *manager_m;
    FILE *file_m = nullptr;
    char *name_m;
    char *mode_m;
    int64_t saved_offset_m = 0;
    fpos_t saved_pos_m{};
    bool persistent_m = false;
    int64_t reopen_count_m = 0;
    int64_t last_access_m = 0;
    int32_t managed_index_m = -1;
    int32_t open_slot_m = -1;
};

class FILE_HANDLE_MANAGER {
public:
    static constexpr int32_t MAX_OPEN_FILES = 12;

    static FILE_HANDLE_MANAGER &FHM();

    FHM_FILE *open(const char *name, const char *mode);
    // Takes over a stream that was opened elsewhere (a file without a name, say);
    // it is persistent, since it could not be reopened.
    FHM_FILE *adopt(FILE *stream, const char *name, const char *mode);
    int close(FHM_FILE *f);
    int evict(FHM_FILE *f);
    FILE *fp(FHM_FILE *f);
    void stats(FILE *stream) const;

    FHM_FILE *std_in() const { return stdin_m; }
    FHM_FILE *std_out() const { return stdout_m; }
    FHM_FILE *std_err() const { return stderr_m; }

    int32_t managed_count() const;    // live managed files
    int32_t open_count() const;       // system handles held now

    static const char *detect_reopen_mode(const char *mode);

private:
    FILE_HANDLE_MANAGER();
    ~FILE_HANDLE_MANAGER() = delete;  // lives to the end of the process

    bool is_standard(const FHM_FILE *f) const {
        return f == stdin_m || f == stdout_m || f == stderr_m;
    }
    FILE *open_FILE(FHM_FILE *f);
    int find_free_slot();
    int claim_slot();
    int evict_file_handle();
    FILE *reopen(FHM_FILE *f);
    void defragment_file_handles();
    void grow_file_handles();
    void mark_access(FHM_FILE *f) { f->last_access_m = access_counter_m++; }

    int32_t managed_capacity_m = 1024;
    int32_t open_capacity_m = MAX_OPEN_FILES;
    FHM_FILE **managed_m;
    FHM_FILE *open_m[MAX_OPEN_FILES] = {};
    int32_t managed_next_m = 0;
    int64_t access_counter_m = 0;
    int32_t next_slot_m = 0;
    bool has_gaps_m = false;
    FHM_FILE *stdin_m;
    FHM_FILE *stdout_m;
    FHM_FILE *stderr_m;
};

FHM_FILE *fhm_open(const char *name, const char *mode);  // null with errno from fopen
FHM_FILE *fhm_adopt(FILE *stream, const char *name, const char *mode);
int fhm_close(FHM_FILE *f);
FHM_FILE *fhm_stdin();
FHM_FILE *fhm_stdout();
FHM_FILE *fhm_stderr();
void fhm_stats(FILE *stream);

// ---- file names ---------------------------------------------------------
// Results in static 500-byte buffers stay valid until the next call of the
// same family.
constexpr size_t FN_BUFSIZE = 500;

void fn_split(const char *path, const char **dir, const char **base, const char **ext);
char *fn_build(char *buffer, const char *dir, const char *base, const char *ext);
char *fn_addext(const char *name, const char *ext, int replace);
char *fn_delext(const char *name);
bool fn_hasdir(const char *path);
const char *fn_basename(const char *path);
int fn_strcmp(const char *a, const char *b);
bool fn_samefile(const char *a, const char *b);
char *fn_realname(const char *path);
char *fn_tmpnam(char *buffer, const char *dir, const char *prefix);
bool fn_exists(const char *path);
int fn_delete(const char *path);
char *fn_get_working_dir(char *buffer);
bool fn_has_full_path(const char *p);
bool fn_has_relative_path(const char *p);
bool fn_starts_with_dot_dot(const char *p);
int fn_rename(const char *from, const char *to);
int fn_change_dir(const char *dir);
bool fn_matches_ext(const char *path, const char *ext);
int64_t file_size(const char *path);
