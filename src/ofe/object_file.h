// OBJECT_FILE: the root of the in-memory model of one object file.
#pragma once

#include <cstdarg>
#include <memory>
#include <string>

#include "ofe/of_reloc_type.h"
#include "ofe/of_state.h"
#include "ofe/of_types.h"

class DATA_MAP;

namespace OFE {

class ELF_FILE;

class OBJECT_FILE : public OF_STATE_MACHINE {
public:
    // A new, empty file for writing; the endianness starts as the host's.
    static OBJECT_FILE *new_OBJECT_FILE(OF_FORMAT format, OF_FORMAT_VER version,
                                        OF_FORMAT_CLASS fclass, OF_MACHINE machine,
                                        OF_ERROR_HANDLER handler, const char *name);
    // Reading existing files is not supported by this engine: null.
    static OBJECT_FILE *new_OBJECT_FILE(FHM_FILE *fh, unsigned size, const char *name,
                                        OF_ERROR_HANDLER handler);
    static OBJECT_FILE *new_OBJECT_FILE(const OF_FILE_HANDLE &handle, OF_ERROR_HANDLER handler);

    ~OBJECT_FILE() override;

    // Format properties.
    OF_FORMAT format() const { return handle_m.format; }
    const char *name() const { return name_m.c_str(); }
    virtual OF_FORMAT_VER format_version() const = 0;
    virtual OF_FORMAT_CLASS format_class() const = 0;
    virtual OF_FILE_TYPE file_type() const = 0;
    virtual int set_file_type(OF_FILE_TYPE t) = 0;
    virtual OF_MACHINE machine() const = 0;
    virtual OF_ENDIAN machine_endian() const = 0;
    virtual void set_machine_endian(OF_ENDIAN e) = 0;
    virtual OF_ENDIAN control_endian() const = 0;
    OF_ENDIAN host_endian() const { return host_endian_m; }

    // Producer, recorded for the build attributes.
    virtual const char *producer_name() const { return producer_m.c_str(); }
    virtual unsigned producer_major_version() const { return producer_major_m; }
    virtual unsigned producer_minor_version() const { return producer_minor_m; }
    virtual unsigned producer_patch_version() const { return producer_patch_m; }
    virtual void set_producer(const char *name, unsigned major, unsigned minor, unsigned patch);

    virtual bool values_are_scnrel() const = 0;
    virtual bool represents_groups_with_sections() const { return true; }
    virtual bool build_attributes_supported() const;

    virtual OF_SECTION_TABLE *section_table() = 0;
    virtual OF_SYMBOL_TABLE *symbol_table() = 0;

    // Format interface down-casts; null and code 3 on the wrong format.
    virtual ELF_FILE *elf_api();

    // Saving.
    // Writes the file under a temporary name and renames it into place.
    int save_obj(const char *name);
    // Writes the file named `name` to `path`, which the caller puts in place.
    // On a failed write the result is -1 with errno set and the engine's
    // messages about it are dropped; -1 with errno 0 is an engine failure,
    // already reported through the error handler.
    int save_obj(const char *name, const char *path);
    virtual int save(const OF_FILE_HANDLE &handle);
    bool saved() const { return saved_m; }
    FHM_FILE *file_handle() const { return handle_m.fh; }
    uint32_t file_offset() const { return handle_m.file_offset; }
    uint32_t file_size() const { return handle_m.file_size; }

    // Writes the whole map at `offset` from the object's start and binds
    // the map to that range of the output file.
    int put_file_data(DATA_MAP &map, uint32_t offset);

    // Error channel.
    void set_error(OF_ERROR_CODE code, const char *format, ...)
        __attribute__((format(printf, 3, 4)));
    void vset_error(OF_ERROR_CODE code, const char *format, va_list ap);
    OF_ERROR_CODE error_code() const { return error_code_m; }
    const char *error_message() const { return error_msg_m; }
    // How many errors were set so far, reported or not.
    unsigned error_count() const { return error_count_m; }
    void clear_error();
    // Installs the handler; an error already pending is handed to it at once.
    void set_error_handler(OF_ERROR_HANDLER handler);
    OF_ERROR_HANDLER error_handler() const { return handler_m; }

    // Relocation types of this machine and format (null when absent).
    const OF_RELOC_TYPE *reloc_type(unsigned id);
    const OF_RELOC_TYPE *reloc_type(const char *template_name);
    const OF_RELOC_TYPE *machine_reloc_type(unsigned number);
    // The whole table, for lookups that must not report a missing type.
    const OF_RELOC_TYPE_TABLE &reloc_types();

    OF_MACHINE_DB *machine_db() const { return machine_db_m.get(); }

    void get_summary_section_sizes(unsigned &code, unsigned &constdata, unsigned &data);

    static const char *format_name(int f);
    static const char *format_version_name(int v);
    static const char *file_type_name(int t);
    static const char *machine_name(int m);
    static const char *error_code_name(int code);
    // Interns a string in a process-wide store.
    static const char *alloc_string(const char *s);

protected:
    explicit OBJECT_FILE(const OF_FILE_HANDLE &handle);
    void set_machine_db(std::unique_ptr<OF_MACHINE_DB> db);
    void set_handle_endian(OF_ENDIAN e) { handle_m.endian = e; }
    OF_ENDIAN handle_endian() const { return handle_m.endian; }
    bool is_new_file() const { return handle_m.fh == nullptr && !saved_m; }
    void close_owned_handle();

private:
    OF_FILE_HANDLE handle_m;
    std::string name_m;
    OF_ENDIAN host_endian_m;
    OF_ERROR_CODE error_code_m = OFERR_NONE;
    unsigned error_count_m = 0;
    const char *error_msg_m = "";
    OF_ERROR_HANDLER handler_m = nullptr;
    std::shared_ptr<const OF_RELOC_TYPE_TABLE> reloc_types_m;
    std::unique_ptr<OF_MACHINE_DB> machine_db_m;
    bool saved_m = false;
    std::string producer_m;
    unsigned producer_major_m = 0;
    unsigned producer_minor_m = 0;
    unsigned producer_patch_m = 0;
};

// Longest engine message kept; longer texts are cut.
inline constexpr std::size_t OF_MAX_ERROR_TEXT = 4094;

}  // namespace OFE
