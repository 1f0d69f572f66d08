#pragma once
// The assembler's message family: counting, forming, printing and listing.
#include <cstdint>

struct linebuf;
struct instruct;
namespace OFE {
class OBJECT_FILE;
enum OF_ERROR_CODE : int;
}  // namespace OFE

extern uint32_t num_errors;
extern uint32_t num_warnings;
extern int32_t output_error;     // 0 while a trial encoding holds messages back
extern uint32_t errors_or_warn;

void remark(linebuf *line, unsigned id, const char *fmt, ...) __attribute__((format(printf, 3, 4)));
void warn(linebuf *line, const char *id, const char *fmt, ...) __attribute__((format(printf, 3, 4)));
void error(linebuf *line, const char *id, const char *fmt, ...) __attribute__((format(printf, 3, 4)));
void error_user(linebuf *line, const char *id, const char *fmt, ...) __attribute__((format(printf, 3, 4)));
void syntax_error(linebuf *line, const char *id);
void error_internal(int fatal, linebuf *line, const char *fmt, ...) __attribute__((format(printf, 3, 4)));
void internal_warning(const char *text);

void remark_packet(instruct *ir, unsigned id, const char *fmt, ...) __attribute__((format(printf, 3, 4)));
void warn_packet(instruct *ir, const char *id, const char *fmt, ...) __attribute__((format(printf, 3, 4)));
void error_packet(instruct *ir, const char *id, const char *fmt, ...) __attribute__((format(printf, 3, 4)));

void ew_summary();

// Installed in the object engine: its errors become counted messages.
void ofile_error_handler(OFE::OBJECT_FILE *of, OFE::OF_ERROR_CODE code, const char *text);

enum remark_lifetime : int { REMARK_RUN = 0, REMARK_PASS = 1 };
void supress_remark(unsigned id, remark_lifetime life);
void supress_all_remarks();
void unsupress_remark(unsigned id);
bool remark_is_supressed(unsigned id);
void remark_reset();
void remark_reset_directives();
