// Driver state: written by the driver, read everywhere.
#include "driver/driver.h"
#include "driver/driver_run.h"

int16_t sys_argc = 0;
char **sys_argv = nullptr;
const char *execname = nullptr;
option_obj *global_opts = nullptr;
OFE::OBJECT_FILE *ofile = nullptr;

int16_t pass1 = 1, pass2 = 0;
uint8_t endfile = 0, endcard = 0;
uint32_t curpc = 0;

char assy_src_name[4096], assy_obj_name[4096], assy_lst_name[4096], assy_prf_name[4096];
FHM_FILE *ASSY_SRC = nullptr, *ASSY_LST = nullptr, *ASSY_PRF = nullptr;
char macro_file[257];
char *dependency_filename = nullptr;
FILE *dependency_file = nullptr;
std::vector<std::string> paths(1);
std::vector<std::string> predefs;

cmd_line_include cmd_line_includes[10];
int16_t cmd_line_includes_cnt = 0;

int16_t version = 70;
time_t sys_time = 0;
char sys_date[64];
int32_t screen_line_width = 80;
std::vector<std::string> run_search_paths;
