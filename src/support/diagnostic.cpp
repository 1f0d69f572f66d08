// The message table and the DIAGNOSTIC object: header, body, end.
#include "support/diagnostic.h"

#include <cstdlib>
#include <cstring>

namespace {
const char *const severity_words[] = {
    "(suppressed)", "(no error)", "advice", "debug", "remark", "warning", "error", "fatal error",
};

// Stands in for an id that has no row, so that a message is never lost.
DIAG_INFO unknown_row = {0, "%s", dc_error, true, false};
}  // namespace

const char *sev_str(dc_SEVERITY sev)
{
    if (sev < dc_suppressed || sev > dc_fatal) return "(unknown)";
    return severity_words[sev];
}

// The rows below 100 belong to the generic forms of USER_MSG; 24000 on to
// the option parser.
DIAG_INFO DIAG_INFO_ENTRY[] = {
    {DIAG::ID_GDEBUG, "%s", dc_debug, false, false},
    {DIAG::ID_GREMARK, "%s", dc_remark, false, false},
    {DIAG::ID_GADVICE, "%s", dc_advice, false, false},
    {DIAG::ID_GWARNING, "%s", dc_warning, false, false},
    {DIAG::ID_GERROR, "%s", dc_error, false, false},
    {DIAG::ID_GAPPERROR, "%s", dc_error, false, true},
    {DIAG::ID_GFATAL, "%s", dc_fatal, false, false},
    {DIAG::ID_GDIE, "%s", dc_fatal, true, false},
    {DIAG::ID_MAX_ERRORS, "error limit of %u reached; giving up", dc_fatal, false, true},
    {24000, "option is invalid", dc_error, false, false},
    {24001, "out of memory", dc_fatal, false, false},
    {24002, "option %s conflicts with previous option %s", dc_error, false, false},
    {24003, "option %s overrides preceding option %s", dc_warning, false, false},
    {24004, "option %s clears preceding option %s", dc_remark, false, false},
    {24005, "option object: bad parm_type [A1]", dc_error, false, false},
    {24006, "Attempt to clear PERSISTENT option %s ignored", dc_warning, false, false},
    {24007, "unhandled clause in setarg() [%u]", dc_fatal, false, false},
    {24008, "unhandled option handler [%u]", dc_fatal, false, false},
    {24009, "list handler for non-list option [%u]", dc_fatal, false, false},
    {24010, "option %s is missing its parameter '%s'", dc_error, false, false},
    {24011, "argument to option %s (%s) is out of range", dc_error, false, false},
    {24012, "argument to option %s (%s) is out of range (must be a non-negative_number)", dc_error, false,
     false},
    {24013, "argument to option %s (%s) is out of range (must be a number from %u to %u", dc_error, false,
     false},
    {24014, "corruption in option handler", dc_fatal, false, false},
    {24015, "bad argument to option %s: should be one of {%s}", dc_error, false, false},
    {24016, "Case insensitivity of options has been deprecated; %s must be written as %s in future releases",
     dc_warning, false, false},
    {24031, "unhandled clause in add_to_history() [%u]", dc_fatal, false, false},
    {0, nullptr, dc_suppressed, false, false},
};

const DIAG_INFO *DIAG_find_row(uint32_t id)
{
    for (const DIAG_INFO *row = DIAG_INFO_ENTRY; row->format; ++row)
        if (row->id == id) return row;
    return nullptr;
}

bool DIAGNOSTIC::wrap_enabled_m = true;
bool DIAGNOSTIC::warnings_m = true;
unsigned DIAGNOSTIC::max_errors_m = 100;
unsigned DIAGNOSTIC::wrap_indent_m = 3;
unsigned DIAGNOSTIC::diag_cols_m = 79;
bool DIAGNOSTIC::display_code_m = false;
bool DIAGNOSTIC::display_ipos_m = false;
bool DIAGNOSTIC::wrap_headers_m = false;
bool DIAGNOSTIC::verbose_m = false;
bool DIAGNOSTIC::advice_m = false;
bool DIAGNOSTIC::debug_m = false;
bool DIAGNOSTIC::remarks_m = false;
bool DIAGNOSTIC::debug_mode_m = false;
unsigned DIAGNOSTIC::indent_m = 0;
std::vector<unsigned> DIAGNOSTIC::indent_stack_m;
std::vector<bool> DIAGNOSTIC::debug_mode_stack_m;
FILE *DIAGNOSTIC::fp_m = nullptr;
unsigned DIAGNOSTIC::error_count_m = 0;
std::vector<dc_SEVERITY> DIAGNOSTIC::saved_severities_m;
DIAGNOSTIC *DIAGNOSTIC::open_m = nullptr;

DIAGNOSTIC::DIAGNOSTIC(uint32_t id, const char *src_file, unsigned src_line)
    : ifile_(src_file), iline_(src_line)
{
    const DIAG_INFO *row = DIAG_find_row(id);
    if (!row) {
        unknown_row.id = id;
        row = &unknown_row;
    }
    row_ = row;
}

DIAGNOSTIC::DIAGNOSTIC(const DIAGNOSTIC &other)
    : row_(other.row_), pos_(other.pos_), has_pos_(other.has_pos_), ifile_(other.ifile_),
      iline_(other.iline_), buffer_(other.buffer_)
{
}

DIAGNOSTIC::~DIAGNOSTIC()
{
    // A message left open ends its line without counting.
    if (open_m == this) {
        fputc('\n', stream());
        fflush(stream());
        open_m = nullptr;
    }
}

void DIAGNOSTIC::report(va_list ap)
{
    print_header();
    vprint(row_->format, ap);
    flush();
}

void DIAG_report(DIAGNOSTIC *d, ...)
{
    va_list ap;
    va_start(ap, d);
    d->report(ap);
    va_end(ap);
}

void DIAGNOSTIC::free_mem()
{
    buffer_.clear();
    buffer_.shrink_to_fit();
}

void DIAGNOSTIC::dump(FILE *fp) const
{
    fprintf(fp, "diagnostic #%u %s%s \"%s\" raised at %s:%u\n", row_->id, row_->internal ? "internal " : "",
            sev_str(row_->severity), row_->format, ifile_ ? ifile_ : "?", iline_);
}

bool DIAGNOSTIC::suppress() const
{
    switch (row_->severity) {
    case dc_suppressed: return true;
    case dc_advice: return !advice_m;
    case dc_debug: return !debug_m;
    case dc_remark: return !remarks_m;
    case dc_warning: return !warnings_m;
    default: return false;
    }
}

FILE *DIAGNOSTIC::stream() const
{
    if (fp_m) return fp_m;
    return row_->severity <= dc_remark ? stdout : stderr;
}

void DIAGNOSTIC::print_header()
{
    if (suppress()) return;
    if (open_m && open_m != this) open_m->flush();
    open_m = this;
    header_printed_ = true;
    fflush(stream() == stdout ? stderr : stdout);

    std::string head(indent_m, ' ');
    char num[64];
    if (row_->internal || display_ipos_m) {
        head += ifile_ ? ifile_ : "?";
        snprintf(num, sizeof num, ":%u:", iline_);
        head += num;
    }
    if (has_pos_ && pos_.file) {
        head += '"';
        head += pos_.file;
        snprintf(num, sizeof num, "\", line %u", pos_.line);
        head += num;
        if (pos_.approximate) head += " (approximate)";
        head += ": ";
    }
    if (display_code_m || row_->internal || row_->severity == dc_advice) {
        bool discretionary = row_->severity < dc_fatal && !row_->internal && !row_->never_discretionary;
        snprintf(num, sizeof num, " #%u", row_->id);
        head += row_->internal ? "internal " : "";
        head += sev_str(row_->severity);
        head += num;
        head += discretionary ? "-D" : "";
        head += ": ";
    } else {
        head += sev_str(row_->severity);
        head += ": ";
    }
    put_text(head.c_str(), wrap_headers_m);
}

std::string DIAG_vformat(const char *fmt, va_list ap)
{
    char small[512];
    va_list copy;
    va_copy(copy, ap);
    int n = vsnprintf(small, sizeof small, fmt, copy);
    va_end(copy);
    if (n < 0) {
        fputs("INTERNAL ERROR!:", stderr);
        fputs("vsnprintf misbehaving\n\n", stderr);
        small[sizeof small - 1] = '\0';
        return small;
    }
    if (static_cast<size_t>(n) < sizeof small) return std::string(small, static_cast<size_t>(n));
    std::string text(static_cast<size_t>(n) + 1, '\0');
    if (vsnprintf(text.data(), text.size(), fmt, ap) < 0) {
        fputs("INTERNAL ERROR!:", stderr);
        fputs("vsprintf misbehaving\n\n", stderr);
    }
    text.resize(strlen(text.c_str()));
    return text;
}

void DIAGNOSTIC::vprint(const char *fmt, va_list ap)
{
    if (!header_printed_ || suppress()) return;
    buffer_ = DIAG_vformat(fmt, ap);
    print_formatted(buffer_.c_str());
}

void DIAGNOSTIC::print(const char *fmt, ...)
{
    va_list ap;
    va_start(ap, fmt);
    vprint(fmt, ap);
    va_end(ap);
}

void DIAGNOSTIC::print_formatted(const char *text)
{
    put_text(text, wrap_enabled_m);
}

// Writes text, breaking lines at blanks so that no line passes diag_cols_m
// where a break helps.  Continuation lines are indented by both indents.
void DIAGNOSTIC::put_text(const char *text, bool wrap)
{
    FILE *fp = stream();
    const unsigned cont = indent_m + wrap_indent_m;
    if (diag_cols_m <= cont) wrap = false;
    const char *p = text;
    while (*p) {
        if (*p == '\n') {
            fputc('\n', fp);
            column_ = 0;
            ++p;
            if (*p) {
                for (unsigned i = 0; i < indent_m; ++i) fputc(' ', fp);
                column_ = indent_m;
                line_has_text_ = false;
            }
            continue;
        }
        size_t blanks = strspn(p, " ");
        const char *word = p + blanks;
        size_t len = strcspn(word, " \n");
        if (wrap && len > 0 && line_has_text_ && column_ + blanks + len > diag_cols_m) {
            fputc('\n', fp);
            for (unsigned i = 0; i < cont; ++i) fputc(' ', fp);
            column_ = cont;
        } else {
            fwrite(p, 1, blanks, fp);
            column_ += static_cast<unsigned>(blanks);
        }
        fwrite(word, 1, len, fp);
        column_ += static_cast<unsigned>(len);
        if (len) line_has_text_ = true;
        p = word + len;
    }
}

void DIAGNOSTIC::show_annotated_source()
{
    if (!has_pos_ || !pos_.file || pos_.line == 0) return;
    FILE *src = fopen(pos_.file, "r");
    if (!src) return;
    std::string line;
    unsigned n = 1;
    int c;
    while ((c = fgetc(src)) != EOF) {
        if (n == pos_.line && c != '\n') line += static_cast<char>(c);
        if (c == '\n' && ++n > pos_.line) break;
    }
    fclose(src);
    if (n < pos_.line) return;
    FILE *fp = stream();
    fprintf(fp, "    %s\n    ", line.c_str());
    for (unsigned i = 0; i < pos_.column && i < line.size(); ++i) fputc(line[i] == '\t' ? '\t' : ' ', fp);
    fputs("^\n", fp);
}

void DIAGNOSTIC::flush()
{
    if (!header_printed_) return;
    header_printed_ = false;
    if (open_m == this) open_m = nullptr;
    FILE *fp = stream();
    fputc('\n', fp);
    column_ = 0;
    line_has_text_ = false;
    if (verbose_m) show_annotated_source();
    fflush(stdout);
    fflush(stderr);
    if (debug_mode_m) return;
    if (row_->severity >= dc_error) ++error_count_m;
    if (row_->severity == dc_fatal) {
        if (row_->internal) abort();
        exit(1);
    }
    if (max_errors_m && error_count_m > max_errors_m && row_->severity >= dc_error) {
        DIAG::max_errors limit;
        limit.emit(max_errors_m);
    }
}

void DIAGNOSTIC::override_severity(uint32_t id, dc_SEVERITY sev)
{
    for (DIAG_INFO *row = DIAG_INFO_ENTRY; row->format; ++row)
        if (row->id == id) row->severity = sev;
}

bool DIAGNOSTIC::override_severity(const char *id_text, dc_SEVERITY sev)
{
    if (!id_text || !*id_text) return false;
    char *end = nullptr;
    unsigned long id = strtoul(id_text, &end, 10);
    if (*end != '\0' || !DIAG_find_row(static_cast<uint32_t>(id))) return false;
    override_severity(static_cast<uint32_t>(id), sev);
    return true;
}

void DIAGNOSTIC::save_severities()
{
    saved_severities_m.clear();
    for (const DIAG_INFO *row = DIAG_INFO_ENTRY; row->format; ++row) saved_severities_m.push_back(row->severity);
}

void DIAGNOSTIC::restore_severities()
{
    size_t i = 0;
    for (DIAG_INFO *row = DIAG_INFO_ENTRY; row->format && i < saved_severities_m.size(); ++row, ++i)
        row->severity = saved_severities_m[i];
}

void DIAGNOSTIC::push_indent(unsigned n)
{
    indent_stack_m.push_back(indent_m);
    indent_m = n;
}

void DIAGNOSTIC::pop_indent()
{
    if (indent_stack_m.empty()) return;
    indent_m = indent_stack_m.back();
    indent_stack_m.pop_back();
}

void DIAGNOSTIC::push_debug_mode(bool on)
{
    debug_mode_stack_m.push_back(debug_mode_m);
    debug_mode_m = on;
}

void DIAGNOSTIC::pop_debug_mode()
{
    if (debug_mode_stack_m.empty()) return;
    debug_mode_m = debug_mode_stack_m.back();
    debug_mode_stack_m.pop_back();
}
