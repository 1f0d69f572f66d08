#pragma once
// Driver state: one writer family each, read everywhere.
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

class option_obj;
class FHM_FILE;
namespace OFE { class OBJECT_FILE; }

extern int16_t sys_argc;
extern char **sys_argv;
extern const char *execname;
extern option_obj *global_opts;
extern OFE::OBJECT_FILE *ofile;

extern int16_t pass1, pass2;
extern uint8_t endfile, endcard;
extern uint32_t curpc;

extern char assy_src_name[4096], assy_obj_name[4096], assy_lst_name[4096], assy_prf_name[4096];
extern FHM_FILE *ASSY_SRC, *ASSY_LST, *ASSY_PRF;
extern char macro_file[257];
extern char *dependency_filename;
extern FILE *dependency_file;
extern std::vector<std::string> paths;
extern std::vector<std::string> predefs;

struct cmd_line_include { char *name; uint8_t is_include; };
extern cmd_line_include cmd_line_includes[10];
extern int16_t cmd_line_includes_cnt;

extern int16_t version;
extern int32_t screen_line_width;

void initialize();
void get_files();
const char *next_argument();
void open_cmd_file(const char *name);
void add_incl_path(const char *dir);
void prepare_pass1();
void prepare_pass2();
void process_source();
void end_processing();
unsigned object_format();   // 0 none, 1 ZQ-COFF, 2 ELF
void set_predefs();

const char *tool_name();
unsigned version_major();
unsigned version_minor();
unsigned version_patch();
const char *version_number();
const char *version_short();
const char *version_full();
const char *isa_and_tool_name();
void print_tool_and_version(FILE *stream);
void print_toolversion(FILE *stream);

int mygetc(FHM_FILE *f);
char *myfgets(char *buf, short n, FHM_FILE *f);
int myfputs(const char *s, FHM_FILE *f);
