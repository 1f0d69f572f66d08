#include "ofe/object_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "ofe/elf_file.h"
#include "ofe/of_machine.h"
#include "ofe/of_section.h"
#include "ofe/zqcoff_file.h"
#include "support/data_map.h"
#include "support/fhm.h"

namespace OFE {

namespace {

// Shared by every object file; a message is cut to OF_MAX_ERROR_TEXT.
char error_buffer[OF_MAX_ERROR_TEXT + 1];

bool is_soft(OF_ERROR_CODE c) { return c == OFERR_WARNING || c == OFERR_TRUNCATED || c == OFERR_DEVELOPMENT; }

OF_ENDIAN host_endianness()
{
    return DATA_MAP::host_endian() == DATA_MAP::ENDIAN_BIG ? OFE_BIG : OFE_LITTLE;
}

}  // namespace

OBJECT_FILE::OBJECT_FILE(const OF_FILE_HANDLE &handle)
    : OF_STATE_MACHINE(nullptr), handle_m(handle), host_endian_m(host_endianness())
{
    set_ofile(this);
    if (handle.name) name_m = handle.name;
    handle_m.name = name_m.c_str();
}

OBJECT_FILE::~OBJECT_FILE() { close_owned_handle(); }

void OBJECT_FILE::close_owned_handle()
{
    if (handle_m.fh && handle_m.owns_handle) fhm_close(handle_m.fh);
    handle_m.fh = nullptr;
    handle_m.owns_handle = false;
}

void OBJECT_FILE::set_machine_db(std::unique_ptr<OF_MACHINE_DB> db) { machine_db_m = std::move(db); }

OBJECT_FILE *OBJECT_FILE::new_OBJECT_FILE(OF_FORMAT format, OF_FORMAT_VER version,
                                          OF_FORMAT_CLASS fclass, OF_MACHINE machine,
                                          OF_ERROR_HANDLER handler, const char *name)
{
    OF_FILE_HANDLE h;
    h.fh = nullptr;
    h.name = name;
    h.format = format;
    h.version = version;
    h.fclass = fclass;
    h.endian = host_endianness();
    h.machine = machine;
    return new_OBJECT_FILE(h, handler);
}

OBJECT_FILE *OBJECT_FILE::new_OBJECT_FILE(FHM_FILE *, unsigned, const char *, OF_ERROR_HANDLER)
{
    // The engine writes objects; it has no reader.
    return nullptr;
}

OBJECT_FILE *OBJECT_FILE::new_OBJECT_FILE(const OF_FILE_HANDLE &handle, OF_ERROR_HANDLER handler)
{
    if (handle.fh) return nullptr;  // reading is not supported
    OBJECT_FILE *f = nullptr;
    if (handle.format == OFF_ZQCOFF) {
        f = new_ZQCOFF_FILE(handle);
    } else if (handle.format == OFF_ELF && handle.fclass == OFC_32) {
        auto db = OF_MACHINE_DB::machine_db(nullptr, handle.machine);
        if (!db) return nullptr;
        f = new ELF_FILE_IMPL<32>(handle);
    }
    if (!f) return nullptr;
    f->handler_m = handler;
    if (f->error_code_m != OFERR_NONE && handler) handler(f, f->error_code_m, f->error_msg_m);
    if (f->machine_db_m) f->machine_db_m->of_process_new_ofile();
    return f;
}

void OBJECT_FILE::set_producer(const char *name, unsigned major, unsigned minor, unsigned patch)
{
    producer_m = name ? name : "";
    producer_major_m = major;
    producer_minor_m = minor;
    producer_patch_m = patch;
}

bool OBJECT_FILE::build_attributes_supported() const
{
    bool supported = false;
    return machine_db_m && machine_db_m->of_supports_build_attributes(this, supported) && supported;
}

ELF_FILE *OBJECT_FILE::elf_api()
{
    set_error(OFERR_CORRUPTED, "attempting to get ELF interface for non-ELF file");
    return nullptr;
}

// ---- error channel ---------------------------------------------------------

void OBJECT_FILE::set_error(OF_ERROR_CODE code, const char *format, ...)
{
    va_list ap;
    va_start(ap, format);
    vset_error(code, format, ap);
    va_end(ap);
}

void OBJECT_FILE::vset_error(OF_ERROR_CODE code, const char *format, va_list ap)
{
    if (code != OFERR_NONE) ++error_count_m;
    if (error_code_m != OFERR_NONE && handler_m) handler_m(this, error_code_m, error_msg_m);
    if (error_code_m != OFERR_NONE) {
        // Keep the more serious pending error; repeats of soft ones add nothing.
        if (!is_soft(error_code_m)) return;
        if (code == OFERR_WARNING || code == OFERR_TRUNCATED) return;
        if (error_code_m == OFERR_DEVELOPMENT && code == OFERR_DEVELOPMENT) return;
    }
    vsnprintf(error_buffer, sizeof error_buffer, format ? format : "", ap);
    error_code_m = code;
    error_msg_m = error_buffer;
    if (code != OFERR_NONE && handler_m) handler_m(this, code, error_msg_m);
}

void OBJECT_FILE::clear_error()
{
    error_code_m = OFERR_NONE;
    error_msg_m = "";
}

void OBJECT_FILE::set_error_handler(OF_ERROR_HANDLER handler)
{
    handler_m = handler;
    if (error_code_m != OFERR_NONE && handler_m) handler_m(this, error_code_m, error_msg_m);
}

// ---- saving ----------------------------------------------------------------

namespace {

// The object goes to a temporary name beside the target and replaces it
// only once it is complete, so a failed save leaves an older file intact.
// Special files (devices, pipes) are written in place.
bool write_in_place(const char *name)
{
    struct stat st;
    return stat(name, &st) == 0 && !S_ISREG(st.st_mode);
}

std::string temporary_name(const char *name)
{
    return std::string(name) + "." + std::to_string(static_cast<long>(getpid())) + ".tmp";
}

// While the file is written the engine's complaints wait: once a write has
// failed every later stage fails too, and only the failed write is news.
struct held_error {
    OF_ERROR_CODE code;
    std::string text;
};
std::vector<held_error> held_errors;
int held_errno = 0;

void hold_error(OBJECT_FILE *f, OF_ERROR_CODE code, const char *text)
{
    if (held_errors.empty()) held_errno = errno;
    held_errors.push_back({code, text ? text : ""});
    f->clear_error();
}

}  // namespace

int OBJECT_FILE::save_obj(const char *name, const char *path)
{
    if (!name) name = "";
    FHM_FILE *fh = path ? fhm_open(path, "wb+") : nullptr;
    if (!fh) return -1;
    // Sections stay bound to the file after saving; the file may be renamed
    // later, so the handle must never be evicted.
    fh->set_persistent(true);

    OF_ERROR_HANDLER handler = handler_m;
    held_errors.clear();
    held_errno = 0;
    handler_m = hold_error;

    int rc = -1;
    FILE *fp = fh->fp();
    long pos = fp ? ftell(fp) : -1;
    if (pos >= 0) {
        OF_FILE_HANDLE h = handle_m;
        h.fh = fh;
        h.name = name;
        h.file_offset = static_cast<uint32_t>(pos);
        h.file_size = 0;
        h.owns_handle = true;
        rc = save(h);
    }
    handler_m = handler;

    fp = fh->fp();
    int err = 0;
    errno = 0;
    if (!fp || ferror(fp) || fflush(fp) != 0) err = held_errno ? held_errno : errno ? errno : EIO;
    if (err) {
        held_errors.clear();
        // An owned handle stays open until the object goes: sections may be
        // bound to it.
        if (handle_m.fh != fh) fhm_close(fh);
        errno = err;
        return -1;
    }
    for (const held_error &e : held_errors) set_error(e.code, "%s", e.text.c_str());
    held_errors.clear();
    if (rc != 0 && handle_m.fh != fh) fhm_close(fh);
    errno = 0;
    return rc == 0 ? 0 : -1;
}

int OBJECT_FILE::save_obj(const char *name)
{
    if (!name) name = "";
    bool in_place = write_in_place(name);
    std::string path = in_place ? std::string(name) : temporary_name(name);
    // The rename would replace a file that may not be written to.
    if (access(name, F_OK) == 0 && access(name, W_OK) != 0) {
        set_error(OFERR_FILE_ACCESS, "failed to open \"%s\" for writing", name);
        return -1;
    }
    int rc = save_obj(name, path.c_str());
    if (rc != 0 && !saved_m && errno != 0 && !file_handle()) {
        set_error(OFERR_FILE_ACCESS, "failed to open \"%s\" for writing", name);
        if (!in_place) remove(path.c_str());
        return -1;
    }
    if (rc == 0 && !in_place && rename(path.c_str(), name) != 0) rc = -1;
    if (rc != 0) {
        set_error(OFERR_FILE_ACCESS, "an error occurred while writing \"%s\"", name);
        if (!in_place) remove(path.c_str());
        return -1;
    }
    return 0;
}

int OBJECT_FILE::save(const OF_FILE_HANDLE &handle)
{
    if (set_state(OFS_FORMATTED) != 0) return -1;
    if (handle_m.fh != handle.fh) close_owned_handle();
    OF_FORMAT format = handle_m.format;
    OF_FORMAT_VER version = handle_m.version;
    OF_FORMAT_CLASS fclass = handle_m.fclass;
    OF_ENDIAN endian = handle_m.endian;
    OF_MACHINE machine = handle_m.machine;
    handle_m = handle;
    handle_m.format = format;
    handle_m.version = version;
    handle_m.fclass = fclass;
    handle_m.endian = endian;
    handle_m.machine = machine;
    if (handle.name) name_m = handle.name;
    handle_m.name = name_m.c_str();

    FILE *fp = handle_m.fh ? handle_m.fh->fp() : nullptr;
    if (!fp) return -1;
    if (fseek(fp, static_cast<long>(handle_m.file_offset), SEEK_SET) != 0) return -1;
    for (uint32_t i = 0; i < handle_m.file_size; ++i)
        if (fputc(0, fp) == EOF) return -1;

    saved_m = true;
    if (set_state(OFS_SAVED) != 0) return -1;
    return 0;
}

int OBJECT_FILE::put_file_data(DATA_MAP &map, uint32_t offset)
{
    if (!handle_m.fh) {
        set_error(OFERR_INTERNAL,
                  "illegal call to OBJECT_FILE::put_file_data() when a valid output file pointer "
                  "is not present");
        return -1;
    }
    uint64_t size = map.size();
    if (size == 0) return 0;
    uint64_t where = static_cast<uint64_t>(handle_m.file_offset) + offset;
    FILE *fp = handle_m.fh->fp();
    if (!fp || fseeko(fp, static_cast<off_t>(where), SEEK_SET) != 0) return -1;
    map.set_cursor(0);
    if (map.save_data(handle_m.fh, size) != 0) return -1;
    map.set_data(handle_m.fh, where, size);
    return 0;
}

// ---- relocation types ------------------------------------------------------

const OF_RELOC_TYPE_TABLE &OBJECT_FILE::reloc_types()
{
    if (!reloc_types_m) {
        // Built once per (machine, format) and shared by all files of that kind.
        static std::map<std::pair<int, int>, std::shared_ptr<OF_RELOC_TYPE_TABLE>> tables;
        auto key = std::make_pair(static_cast<int>(handle_m.machine), static_cast<int>(handle_m.format));
        auto it = tables.find(key);
        if (it == tables.end()) {
            auto table = std::make_shared<OF_RELOC_TYPE_TABLE>();
            for (const OF_RELOC_TEMPLATE *t = OF_COMMON_RELOC_TEMPLATE_DB; t->id != ~0u; ++t)
                table->add_template(*t);
            if (machine_db_m) machine_db_m->rel_build_type_table(*table);
            it = tables.emplace(key, table).first;
        }
        reloc_types_m = it->second;
    }
    return *reloc_types_m;
}

const OF_RELOC_TYPE *OBJECT_FILE::reloc_type(unsigned id)
{
    const OF_RELOC_TYPE *t = reloc_types().by_template_id(id);
    if (t) return t;
    set_error(OFERR_WARNING, "relocation template %ld not found; returning OFR_INVALID",
              static_cast<long>(id));
    return invalid_reloc_type();
}

const OF_RELOC_TYPE *OBJECT_FILE::reloc_type(const char *template_name)
{
    const OF_RELOC_TYPE *t = template_name ? reloc_types().by_template_name(template_name) : nullptr;
    return t ? t : invalid_reloc_type();
}

const OF_RELOC_TYPE *OBJECT_FILE::machine_reloc_type(unsigned number)
{
    return reloc_types().by_number(number);
}

// ---- summaries and names ---------------------------------------------------

void OBJECT_FILE::get_summary_section_sizes(unsigned &code, unsigned &constdata, unsigned &data)
{
    OF_SECTION_TABLE *t = section_table();
    if (!t) return;
    for (unsigned i = 0; i < t->scnnum(); ++i) {
        OF_SECTION *s = t->section(i);
        if (!s || s->is_deleted() || !s->allocated()) continue;
        auto size = static_cast<unsigned>(s->size());
        if (!s->initialized())
            data += size;
        else if (s->exec())
            code += size;
        else if (s->data())
            constdata += size;
    }
}

const char *OBJECT_FILE::format_name(int f)
{
    switch (f) {
    case OFF_ZQCOFF: return "ZQ-COFF";
    case OFF_ELF: return "ELF";
    default: return "UNKNOWN";
    }
}

const char *OBJECT_FILE::format_version_name(int v)
{
    switch (v) {
    case OFV_COFF0: return "0";
    case OFV_COFF1: return "1";
    case OFV_COFF2: return "2";
    case OFV_ELF1: return "1";
    default: return "unknown format version";
    }
}

const char *OBJECT_FILE::file_type_name(int t)
{
    switch (t) {
    case OFT_RELOCATABLE: return "relocatable file";
    case OFT_EXECUTABLE: return "executable file";
    case OFT_DYNAMIC: return "dynamic shared object file";
    case OFT_STATIC_SHARED: return "static shared object file";
    case OFT_CORE: return "core file";
    default: return "unknown file type";
    }
}

const char *OBJECT_FILE::machine_name(int m)
{
    return m == OFM_ARM ? "Advanced RISC Machines ARM" : "unknown machine";
}

const char *OBJECT_FILE::error_code_name(int code)
{
    static const char *const names[] = {
        "no error",      "invalid object file format", "file access error",
        "corrupted object file", "warning",           "illegal operation",
        "value truncated", "internal error",          "development issue",
    };
    return code >= 0 && code <= 8 ? names[code] : "unknown error";
}

const char *OBJECT_FILE::alloc_string(const char *s)
{
    static std::set<std::string, std::less<>> store;
    if (!s) return nullptr;
    return store.emplace(s).first->c_str();
}

}  // namespace OFE
